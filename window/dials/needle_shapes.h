#pragma once

#include "instruments/instrument_picture.h"

#include <QLineF>
#include <QPolygonF>

#include <vector>

namespace tarnel {

/// A straight part of a needle, with square ends.
struct NeedleBar {
    QLineF axis;
    double width = 1;
};

/// What is painted in one colour: bars and filled faces.
struct NeedleShape {
    std::vector<NeedleBar> bars;
    std::vector<QPolygonF> faces;
};

/// Makes the shapes of what turns on an instrument, in pixels, from its lines in twips.
class NeedleShapes {
  public:
    NeedleShapes(const InstrumentPicture& shown, double pixelsPerTwip)
        : picture(shown), scale(pixelsPerTwip) {}

    [[nodiscard]] QPointF place(Point point) const { return {point.x * scale, point.y * scale}; }
    /// `weight` times as wide as the line says.
    [[nodiscard]] NeedleBar bar(const Line& line, double weight = 1) const;

    /// The first needle, or head and shaft of the HSI's course arrow.
    [[nodiscard]] NeedleShape firstNeedle(double weight) const;
    /// The space between the two bars of the second needle.
    [[nodiscard]] NeedleBar secondBody() const;
    /// The outline of that space.
    [[nodiscard]] NeedleShape secondBars() const;
    [[nodiscard]] NeedleShape secondHead() const;
    [[nodiscard]] NeedleShape triangle() const;
    [[nodiscard]] NeedleShape headingBug() const;
    [[nodiscard]] NeedleShape aircraft() const;

  private:
    [[nodiscard]] QPolygonF polygon(std::initializer_list<Point> corners) const;

    const InstrumentPicture& picture;
    double scale;
};

} // namespace tarnel
