#include "window/radios/dme_selector.h"

#include "look/panel_look.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

namespace {

constexpr std::array modes{DmeMode::freq, DmeMode::r1, DmeMode::r2};
constexpr double middleDegrees = 90; ///< where R1 stands, beside the knob
constexpr double positionDegrees = 38;
constexpr double twipsPerPosition = 300; ///< of a drag on the knob
constexpr double wordGap = 4;
constexpr double row = 19;
constexpr double rowShare = 0.28; ///< of the knob's side, where that is more
constexpr double type = 12;

int positionOf(DmeMode mode) {
    return static_cast<int>(mode);
}

double degreesOf(DmeMode mode) {
    return middleDegrees + positionDegrees * (positionOf(mode) - positionOf(DmeMode::r1));
}

} // namespace

DmeSelector::DmeSelector(DMEControlFace& dme, PictureStore& pictures, const StringTable& texts,
                         QWidget* parent)
    : QWidget(parent),
      face(dme),
      words{textOf(texts, Text::dmeSourceFrequency), textOf(texts, Text::dmeSourceReceiver1),
            textOf(texts, Text::dmeSourceReceiver2)},
      switchKnob(pictures, KnobCap::single, this) {
    setToolTip(textOf(texts, Text::dmeSourceTip));
    setCursor(Qt::PointingHandCursor);
    setSpokenName(*this, textOf(texts, Text::spokenDmeSourceKnob));
    setSpokenName(switchKnob, accessibleName());
    switchKnob.setScaleShown(false);
    connectKnob();
    refresh();
}

void DmeSelector::connectKnob() {
    switchKnob.press = [this](Point at) {
        knobPress = at;
        positionAtPress = positionOf(face.mode());
        knobTurned = false;
    };
    switchKnob.move = [this](Point at, MouseButton /*held*/) {
        const double way = (at.x - knobPress.x) + (at.y - knobPress.y);
        const int positions = static_cast<int>(std::lround(way / twipsPerPosition));
        knobTurned = knobTurned || positions != 0;
        turnTo(positionAtPress + positions);
    };
    switchKnob.release = [this] {
        if (!knobTurned)
            turnTo((positionAtPress + 1) % static_cast<int>(modes.size()));
    };
    switchKnob.lost = [] {}; // a click that was not ended is none
    switchKnob.step = [this](int steps) { turnTo(positionOf(face.mode()) - steps); };
    switchKnob.travel = [this]() -> KnobTravel {
        constexpr double positions = modes.size();
        return {
            .value = positions - positionOf(face.mode()), .least = 1, .most = positions, .step = 1};
    };
}

/// Up is towards the uppermost word.
void DmeSelector::turnTo(int position) {
    const int last = static_cast<int>(modes.size()) - 1;
    choose(modes[static_cast<std::size_t>(std::clamp(position, 0, last))]);
}

void DmeSelector::choose(DmeMode mode) {
    if (mode != face.mode())
        change([this, mode] { face.selectMode(mode); });
}

void DmeSelector::change(const std::function<void()>& action) {
    guard(action);
    refresh();
}

void DmeSelector::refresh() {
    setEnabled(face.c_OnOff == 1);
    switchKnob.setDimmed(!isEnabled());
    switchKnob.setPointer(degreesOf(face.mode()));
    switchKnob.setValueText(word(face.mode()));
    if (shown == face.mode())
        return;
    shown = face.mode();
    update();
}

void DmeSelector::setScale(double moduleScale) {
    scale = moduleScale;
    switchKnob.setTwipsPerPixel(look::twipsPerPixel / scale);
    update();
}

double DmeSelector::rowHeight() const {
    const double roomy = std::max(row * scale, knobSide() * rowShare);
    return std::min(height() / 3.0, roomy);
}

double DmeSelector::knobSide() const {
    return std::min<double>(height(), width() - (widthFor(height()) - height()));
}

double DmeSelector::widthFor(double height) const {
    const QFontMetricsF metrics(look::font(type * scale, QFont::Bold));
    double widest = 0;
    for (const QString& word : words)
        widest = std::max(widest, metrics.horizontalAdvance(word));
    return height + widest + wordGap * scale;
}

QRectF DmeSelector::wordArea(DmeMode mode) const {
    const double left = knobSide();
    const double high = rowHeight();
    const double top = height() / 2.0 + (positionOf(mode) - 1.5) * high;
    return {left, top, width() - left, high};
}

QPointF DmeSelector::wordCentre(DmeMode mode) const {
    return wordArea(mode).center();
}

Point DmeSelector::twipsIn(DmeMode word, QPointF at) const {
    const QPointF within = at - wordArea(word).topLeft();
    return {within.x() * look::twipsPerPixel / scale, within.y() * look::twipsPerPixel / scale};
}

void DmeSelector::resizeEvent(QResizeEvent* /*event*/) {
    const double side = knobSide();
    switchKnob.setGeometry(QRectF(0, (height() - side) / 2, side, side).toRect());
}

void DmeSelector::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = switchKnob.geometry().toRectF().center();
    const double rim = knobSide() / 2;
    constexpr double markFrom = 0.9;
    constexpr double markStrength = 0.6;
    const QColor chosenInk = isEnabled() ? look::measured : look::dimCaption;
    const QColor ink = isEnabled() ? look::unit : look::dimCaption;
    for (const DmeMode mode : modes) {
        const bool chosen = mode == face.mode();
        const QRectF area = wordArea(mode);
        painter.setPen(
            QPen(chosen ? chosenInk : look::faded(ink, markStrength), chosen ? 2 * scale : scale));
        const double turn = degreesOf(mode) * std::numbers::pi / 180;
        const QPointF out(std::sin(turn), -std::cos(turn));
        painter.drawLine(centre + out * (rim * markFrom), centre + out * rim);
        painter.setFont(look::font(type * scale, chosen ? QFont::Bold : QFont::Normal));
        painter.setPen(chosen ? chosenInk : ink);
        painter.drawText(area.adjusted(wordGap * scale, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         words[static_cast<std::size_t>(mode)]);
    }
}

void DmeSelector::mousePressEvent(QMouseEvent* event) {
    for (const DmeMode mode : modes)
        if (wordArea(mode).contains(event->position())) {
            pressedWord = mode;
            const Point at = twipsIn(mode, event->position());
            hold.begin();
            change([this, mode, at] { face.selectorDown(mode, at); });
            return;
        }
}

void DmeSelector::mouseMoveEvent(QMouseEvent* event) {
    const Point at = twipsIn(pressedWord, event->position());
    change([this, at] { face.selectorMove(at); });
}

void DmeSelector::mouseReleaseEvent(QMouseEvent* event) {
    const bool mayClick = event->button() == Qt::LeftButton;
    hold.end();
    change([this, mayClick] { mayClick ? face.selectorUp() : face.selectorLost(); });
}

} // namespace tarnel
