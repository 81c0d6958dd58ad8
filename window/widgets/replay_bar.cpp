#include "window/widgets/replay_bar.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarnel {

namespace {

constexpr int frameMilliseconds = 16;
constexpr int samplesPerMinute = 45; ///< a page of the bar

} // namespace

ReplayBar::ReplayBar(QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setRange(1, 1);
    setPageStep(samplesPerMinute);
    setFocusPolicy(Qt::StrongFocus);
    frame.setSingleShot(true);
    frame.setTimerType(Qt::PreciseTimer);
    frame.setInterval(frameMilliseconds);
    connect(&frame, &QTimer::timeout, this, &ReplayBar::ask);
    connect(this, &QSlider::valueChanged, this, [this] { isSliderDown() ? ask() : askNow(); });
}

void ReplayBar::showPlace(int max, int value) {
    asked = value;
    if (maximum() == max && this->value() == value)
        return;
    const QSignalBlocker quiet(this);
    setRange(1, max);
    if (!isSliderDown())
        setValue(value);
    update();
}

void ReplayBar::ask() {
    if (frame.isActive() || value() == asked)
        return;
    askNow();
    frame.start();
}

void ReplayBar::askNow() {
    asked = value();
    if (onScroll)
        onScroll(asked);
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
    setValue(sampleAt(*event));
    event->accept();
}

void ReplayBar::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        setValue(sampleAt(*event));
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
    if (value() != asked)
        askNow();
    event->accept();
}

} // namespace tarnel
