#include "window/widgets/replay_bar.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarnel {

namespace {

/// As many pictures a second as a film has; each costs as much as a step of flight.
constexpr int frameMilliseconds = 40;
constexpr int samplesPerMinute = 45; ///< a page of the bar

} // namespace

ReplayBar::ReplayBar(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(1, 1);
    setPageStep(samplesPerMinute);
    setFocusPolicy(Qt::StrongFocus);
    frame.setSingleShot(true);
    frame.setTimerType(Qt::PreciseTimer);
    frame.setInterval(frameMilliseconds);
    connect(&frame, &QTimer::timeout, this, &ReplayBar::followHand);
    connect(this, &QSlider::valueChanged, this, [this](int sample) {
        if (onScroll)
            onScroll(sample);
    });
}

void ReplayBar::showPlace(int max, int value) {
    if (maximum() == max && this->value() == value)
        return;
    const QSignalBlocker quiet(this);
    setRange(1, max);
    if (!isSliderDown())
        setValue(value);
    update();
}

void ReplayBar::followHand() {
    if (frame.isActive() || value() == wanted)
        return;
    frame.start();
    setValue(wanted);
}

int ReplayBar::sampleAt(const QMouseEvent& event) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect handle =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const QRect groove =
        style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const int reach = groove.width() - handle.width();
    const int x = event.position().toPoint().x() - groove.x() - handle.width() / 2;
    return QStyle::sliderValueFromPosition(minimum(), maximum(), x, reach);
}

void ReplayBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    hold.begin();
    setSliderDown(true);
    wanted = sampleAt(*event);
    followHand();
    event->accept();
}

void ReplayBar::mouseMoveEvent(QMouseEvent* event) {
    wanted = sampleAt(*event);
    if (isSliderDown())
        followHand();
    event->accept();
}

void ReplayBar::letGo() {
    frame.stop();
    setSliderDown(false);
}

void ReplayBar::mouseReleaseEvent(QMouseEvent* event) {
    if (!isSliderDown())
        return;
    hold.end();
    letGo();
    setValue(sampleAt(*event));
    event->accept();
}

} // namespace tarnel
