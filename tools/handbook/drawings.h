#pragma once

#include "instruments/instrument_picture.h"
#include "window/dials/instrument_painter.h"

#include <QByteArray>
#include <QPicture>

#include <string>

namespace tarnel {

/// A dial as an SVG, by a painter whose numerals are text.
[[nodiscard]] QByteArray dialDrawing(InstrumentPainter& dials, const InstrumentPicture& picture);

/// A picture, so many units wide and high, as an SVG.
[[nodiscard]] QByteArray pictureDrawing(const QPicture& picture, double units);

/// Throws OutputError.
void writeFile(const std::string& file, const QByteArray& bytes);

} // namespace tarnel
