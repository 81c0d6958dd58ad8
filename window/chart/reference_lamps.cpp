#include "window/chart/reference_lamps.h"

#include "look/look.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

// Lengths on a plate of this size.
constexpr double plateWidth = 152;
constexpr double plateHeight = 34;
constexpr double lampSide = 11;
constexpr double lampTop = 6;
constexpr double lampStep = 14.5;
constexpr double groupGap = 3; ///< more room after each mile
constexpr double firstLamp = 8;
constexpr double numberTop = 18;
constexpr std::size_t lampsPerMile = 3;
constexpr int miles = 3;

constexpr QColor green = look::rgb(0x2BA84A);
constexpr QColor orange = look::rgb(0xF28C00);
constexpr QColor red = look::rgb(0xD8322A);

QColor colourOf(Lamp lamp) {
    switch (lamp) {
    case Lamp::green:
        return green;
    case Lamp::orange:
        return orange;
    case Lamp::red:
        return red;
    case Lamp::dark:
        break;
    }
    return look::day.hairline;
}

} // namespace

ReferenceLamps::ReferenceLamps(const UserControl2& simulation, const StringTable& table,
                               QWidget* parent)
    : QWidget(parent), sim(simulation), texts(table) {
    setObjectName(QStringLiteral("ReferenceLamps"));
    setToolTip(textOf(texts, Text::referenceTrackTip));
    setSpokenRole(*this, QAccessible::Graphic);
    setFocusPolicy(Qt::TabFocus);
    hide();
}

void ReferenceLamps::refresh() {
    const ReferenceReading& reading = sim.referenceReading;
    setVisible(reading.known && width() > 0);
    if (isHidden())
        return;
    setSpokenName(*this, textOf(texts, Text::referenceTrack) + QLatin1Char(' ') +
                             QString::number(reading.distance, 'f', 1) + QLatin1Char(' ') +
                             textOf(texts, Text::unitNauticalMiles));
    if (reading.lamps == shown)
        return;
    shown = reading.lamps;
    update();
}

double ReferenceLamps::lampAt(std::size_t lamp) {
    const std::size_t mile = lamp / lampsPerMile;
    return firstLamp + static_cast<double>(lamp) * lampStep + static_cast<double>(mile) * groupGap;
}

/// A number stands between two lamps, at the end of its mile.
void ReferenceLamps::paintNumber(QPainter& painter, int mile) const {
    const double middle = lampAt(static_cast<std::size_t>(mile) * lampsPerMile) -
                          (lampStep - lampSide + (mile == 0 ? 0 : groupGap)) / 2;
    const double room = lampStep;
    painter.drawText(QRectF(middle - room / 2, numberTop, room, plateHeight - numberTop),
                     Qt::AlignCenter, QString::number(mile));
}

void ReferenceLamps::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plate = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(hasFocus() ? look::day.accent : look::day.line, hasFocus() ? 2 : 1));
    painter.setBrush(look::day.card);
    painter.drawRoundedRect(plate, look::paperRadius, look::paperRadius);
    const double scale = std::min(width() / plateWidth, height() / plateHeight);
    painter.scale(scale, scale);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const bool lit = shown[i] != Lamp::dark;
        painter.setPen(QPen(lit ? colourOf(shown[i]).darker(130) : look::day.line, 1));
        painter.setBrush(colourOf(shown[i]));
        painter.drawEllipse(QRectF(lampAt(i), lampTop, lampSide, lampSide));
    }
    painter.setPen(look::day.secondaryInk);
    painter.setFont(look::font(look::scaleType));
    for (int mile = 0; mile <= miles; ++mile)
        paintNumber(painter, mile);
}

} // namespace tarnel
