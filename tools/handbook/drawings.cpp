#include "tools/handbook/drawings.h"

#include "look/panel_look.h"
#include "tools/output/output_file.h"
#include "window/widgets/numeral_shapes.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include <functional>

namespace tarnel {

namespace {

/// What `paint` paints into a square of so many units.
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

/// Gives numerals their edge, which no painter can give to text.
QByteArray edged(QByteArray drawn) {
    const QByteArray colour = look::shapeEdge.name().toUtf8();
    const QByteArray text = "<text fill=\"" + colour + "\" fill-opacity=\"1\" stroke=";
    return drawn.replace(text + "\"none\"", text + '"' + colour +
                                                "\" stroke-linejoin=\"round\" stroke-width=\"" +
                                                QByteArray::number(numeralTextEdge) + '"');
}

} // namespace

QByteArray dialDrawing(InstrumentPainter& dials, const InstrumentPicture& picture) {
    constexpr double units = 480;
    return edged(drawing(units, [&](QPainter& painter) { dials.paint(painter, picture, units); }));
}

QByteArray pictureDrawing(const QPicture& picture, double units) {
    return drawing(units, [&](QPainter& painter) {
        // A picture is drawn in the size that it has on paper, whatever its own resolution.
        const double dots = double(painter.device()->logicalDpiX()) / picture.logicalDpiX();
        painter.scale(1 / dots, 1 / dots);
        painter.drawPicture(0, 0, picture);
    });
}

void writeFile(const std::string& file, const QByteArray& bytes) {
    OutputFile output(file);
    output.write(bytes.toStdString());
    output.close();
}

} // namespace tarnel
