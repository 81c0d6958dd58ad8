#include "window/widgets/cover_plate.h"

#include "look/panel_look.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

// Shares of the side.
constexpr double screwInset = 0.07;
constexpr double screwRadius = 0.018;
constexpr double letters = 0.044;
constexpr double smallLetters = 0.036;
constexpr double leastLetters = 11; ///< px

} // namespace

CoverPlate::CoverPlate(const StringTable& texts, QWidget* parent)
    : QWidget(parent), name(textOf(texts, Text::instrumentCovered)) {
    setSpokenRole(*this, QAccessible::StaticText);
    setSpokenName(*this, name);
}

void CoverPlate::setReason(const QString& text) {
    if (text == reason)
        return;
    reason = text;
    setSpokenDescription(*this, reason);
    update();
}

void CoverPlate::paintScrews(QPainter& painter, double side) const {
    const double radius = screwRadius * side;
    for (const double x : {screwInset, 1 - screwInset})
        for (const double y : {screwInset, 1 - screwInset}) {
            const QPointF centre(x * side, y * side);
            painter.setPen(QPen(look::panelRing, 1));
            painter.setBrush(look::downward(centre.y() - radius, centre.y() + radius,
                                            look::bezelTop.lighter(115), look::bezelBottom));
            painter.drawEllipse(centre, radius, radius);
            const QPointF slot(radius * 0.5, radius * 0.5);
            painter.drawLine(centre - slot, centre + slot);
        }
}

void CoverPlate::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(width(), height());
    const QRectF plate(0.5, 0.5, side - 1, side - 1);
    painter.setPen(QPen(look::panelRing, 1));
    painter.setBrush(look::downward(0, side, look::bezelTop, look::bezelBottom));
    const double round = look::bezelRadiusShare * side;
    painter.drawRoundedRect(plate, round, round);
    painter.setPen(QPen(look::faded(Qt::white, 0.10), 1));
    painter.drawLine(QPointF(round, 1.5), QPointF(side - round, 1.5));
    paintScrews(painter, side);

    const QFont large = look::font(std::max(letters * side, leastLetters + 2), QFont::Bold);
    const QFont small = look::font(std::max(smallLetters * side, leastLetters));
    const double gap = QFontMetricsF(large).height() * 0.15;
    painter.setPen(look::caption);
    painter.setFont(large);
    painter.drawText(QRectF(0, 0, side, side / 2 - gap), Qt::AlignHCenter | Qt::AlignBottom, name);
    painter.setPen(look::unit);
    painter.setFont(small);
    painter.drawText(QRectF(0, side / 2 + gap, side, side / 2), Qt::AlignHCenter | Qt::AlignTop,
                     reason);
}

} // namespace tarnel
