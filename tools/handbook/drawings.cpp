#include "tools/handbook/drawings.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

namespace tarnel {

QByteArray drawing(double side, const std::function<void(QPainter&)>& paint) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(QSizeF(side, side).toSize());
    generator.setViewBox(QRectF(0, 0, side, side));
    {
        QPainter painter(&generator);
        paint(painter);
    }
    return bytes;
}

} // namespace tarnel
