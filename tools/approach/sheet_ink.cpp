#include "tools/approach/sheet_ink.h"

#include <cmath>

namespace tarnel::ink {

QFont type(double height, bool bold) {
    QFont font = look::font(height, bold ? QFont::Bold : QFont::Normal);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QPen pen(double width, QColor colour) {
    return {colour, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

QPen dashed(double width, QColor colour) {
    QPen pen(colour, width, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
    pen.setDashPattern({5, 3});
    return pen;
}

void text(QPainter& painter, const QRectF& place, int alignment, const QString& words,
          const QFont& font, QColor colour) {
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(place, alignment, words);
}

QString qt(const std::string& words) {
    return QString::fromStdString(words);
}

QString feet(double altitude) {
    return QString::number(std::lround(altitude));
}

void cell(QPainter& painter, const QRectF& place, const QString& caption, const QString& words) {
    const QRectF inner = place.adjusted(4, 6, -4, -6);
    text(painter, inner, Qt::AlignHCenter | Qt::AlignTop, caption, type(tiny),
         look::day.secondaryInk);
    text(painter, inner, Qt::AlignHCenter | Qt::AlignBottom, words, type(value, true));
}

} // namespace tarnel::ink
