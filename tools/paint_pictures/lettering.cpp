#include "tools/paint_pictures/lettering.h"

#include <QFont>
#include <QTransform>

namespace tarnel {

namespace {

QFont outlineFont(int pixels) {
    constexpr double spacingPercent = 104;
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(pixels);
    font.setBold(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::PercentageSpacing, spacingPercent);
    return font;
}

} // namespace

QPainterPath letters(const QString& text, double size, QPointF at, Anchor anchor) {
    constexpr int outlinePixels = 200;
    QPainterPath outline;
    outline.addText(0, 0, outlineFont(outlinePixels), text);
    const QRectF box = outline.boundingRect();
    double origin = box.left();
    if (anchor == Anchor::Centre)
        origin = box.center().x();
    else if (anchor == Anchor::Right)
        origin = box.right();

    QTransform placed;
    placed.translate(at.x(), at.y());
    placed.scale(size / outlinePixels, size / outlinePixels);
    placed.translate(-origin, 0);
    return placed.map(outline);
}

} // namespace tarnel
