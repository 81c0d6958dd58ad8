#include "instruments/instrument_layout.h"

#include "core/rounding.h"

#include <array>
#include <cstddef>

namespace tarnel {

namespace {

/// A line in halves of its square: x from the middle, y from the top.
struct Figure {
    double x1, y1, x2, y2;
};

constexpr std::array<Figure, 4> needleFigure{{
    {0, 2 - 0.37, 0, 0.37},
    {-0.05, 0.55, 0, 0.38},
    {0.05, 0.55, 0, 0.37},
    {-0.05, 0.55, 0.05, 0.55},
}};

constexpr std::array<Figure, 4> arrowHeadFigure{{
    {0, 0.7, 0, 0.4},
    {-0.05, 0.6, 0, 0.42},
    {0.05, 0.6, 0, 0.42},
    {-0.05, 0.6, 0.05, 0.6},
}};

constexpr Figure arrowTailFigure{0, 2 - 0.4, 0, 2 - 0.7};

constexpr std::array<Figure, 6> rmiNeedleFigure{{
    {-0.05, 2 - 0.5, -0.05, 0.6},
    {0.05, 2 - 0.5, 0.05, 0.6},
    {-0.1, 0.7, 0, 0.38},
    {0.1, 0.7, 0, 0.38},
    {0, 2 - 0.37, 0, 0.37},
    {0.05, 2 - 0.5, -0.05, 2 - 0.5},
}};

constexpr std::array<Figure, 6> overlayNeedleFigure{{
    {-0.05, 2 - 0.5, -0.05, 0.6},
    {0.05, 2 - 0.5, 0.05, 0.6},
    {-0.075, 0.7, 0, 0.49},
    {0.075, 0.7, 0, 0.49},
    {0, 2 - 0.45, 0, 0.45},
    {0.05, 2 - 0.5, -0.05, 2 - 0.5},
}};

constexpr std::array<Figure, 7> bugFigure{{
    {-0.1, 0.25, 0.1, 0.25},
    {-0.1, 0.25, -0.1, 0.32},
    {0.1, 0.25, 0.1, 0.32},
    {-0.1, 0.32, -0.04, 0.32},
    {0.1, 0.32, 0.04, 0.32},
    {-0.04, 0.32, 0, 0.38},
    {0.04, 0.32, 0, 0.38},
}};

constexpr std::array<Figure, 3> triangleFigure{{
    {-0.1, 0.85, 0, 0.7},
    {0.1, 0.85, 0, 0.7},
    {-0.1, 0.85, 0.1, 0.85},
}};

constexpr std::array<Figure, 3> aircraftFigure{{
    {0, 1.15, 0, 0.9},
    {0.15, 1, -0.15, 1},
    {0.05, 89.0 / 80, -0.05, 89.0 / 80},
}};

constexpr double fullTravel = 0.4; ///< of the bar, in halves

void lay(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle, Line& line,
         const Figure& figure) {
    const double h = square.half();
    picture.surface.place(line, square.turned(angle, {h + h * figure.x1, h * figure.y1}),
                          square.turned(angle, {h + h * figure.x2, h * figure.y2}));
}

template <std::size_t count>
void lay(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle,
         std::array<Line, count>& lines, const std::array<Figure, count>& figures) {
    for (std::size_t i = 0; i < count; ++i)
        lay(picture, square, angle, lines[i], figures[i]);
}

/// The bar's x in the control, whole twips.
double barX(const CardSquare& square, double travel) {
    return roundToEven(square.offset() + square.half() + travel * (square.half() * fullTravel));
}

} // namespace

CardSquare::CardSquare(double scaleWidth, double cardScale)
    : sizeW(toInt16(scaleWidth * cardScale)), off(scaleWidth * ((1 - cardScale) / 2)) {}

Point CardSquare::turned(std::int16_t angle, Point point) const {
    const Point place = Rotate(angle, {half(), half()}, point);
    return {roundToEven(place.x) + off, roundToEven(place.y) + off};
}

double cardScaleOf(InstrumentKind kind) {
    if (kind == InstrumentKind::hsi)
        return 0.9;
    return kind == InstrumentKind::dg ? 1.1 : 0.95;
}

void turnCard(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle) {
    constexpr Figure longTick{0, 0.22, 0, 0.35};
    constexpr Figure shortTick{0, 0.27, 0, 0.35};
    for (int i = 0; i < 36; ++i) {
        const auto longAngle = toInt16(angle + i * 10);
        const auto shortAngle = toInt16(angle + i * 10 + 5);
        const auto tick = static_cast<std::size_t>(i);
        lay(picture, square, longAngle, picture.Line1[tick], longTick);
        lay(picture, square, shortAngle, picture.Line1[tick + 36], shortTick);
    }
    for (int i = 0; i < 12; ++i)
        picture.surface.place(
            picture.Label1[static_cast<std::size_t>(i)],
            square.turned(toInt16(angle + i * 30), {square.half(), square.half() * 0.42}));
}

void turnFirstNeedle(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle) {
    lay(picture, square, angle, picture.Line3to6, needleFigure);
}

void turnSecondNeedle(InstrumentPicture& picture, std::int16_t angle, InstrumentKind kind) {
    lay(picture, CardSquare(picture.size, 1), angle, picture.Line7to12,
        kind == InstrumentKind::hsi ? overlayNeedleFigure : rmiNeedleFigure);
}

void turnHeadingBug(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle) {
    lay(picture, square, angle, picture.Line17to23, bugFigure);
}

void turnDots(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle) {
    const double h = square.half();
    const auto put = [&](Round& dot, double x, double diameter) {
        picture.surface.set(dot.centre, square.turned(angle, {h + x, h}));
        picture.surface.set(dot.diameter, diameter);
    };
    put(picture.Shape2[0], 0, h / 15);
    for (std::size_t i = 1; i <= 5; ++i) {
        const double x = 2 * static_cast<double>(i) * (h * fullTravel / 10);
        put(picture.Shape2[i], x, h / 25 + 20);
        put(picture.Shape2[i + 5], -x, h / 25 + 20);
    }
}

void placeBar(InstrumentPicture& picture, const CardSquare& square, double travel) {
    const double x = barX(square, travel);
    const double reach = square.half() * 0.6;
    picture.surface.place(picture.Line13, {x, square.offset() + square.side() - reach},
                          {x, square.offset() + reach});
}

void turnCourseArrow(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle,
                     std::int16_t triangleAngle, double travel) {
    const double x = barX(square, travel) - square.offset();
    const double reach = square.half() * 0.7;
    picture.surface.place(picture.Line13, square.turned(angle, {x, square.side() - reach}),
                          square.turned(angle, {x, reach}));
    lay(picture, square, angle, picture.Line3to6, arrowHeadFigure);
    lay(picture, square, angle, picture.Line14, arrowTailFigure);
    lay(picture, square, triangleAngle, picture.Line15, triangleFigure);
}

void placeFixedParts(InstrumentPicture& picture, const CardSquare& square) {
    DrawingSurface& surface = picture.surface;
    const double size = picture.size;
    lay(picture, CardSquare(size, 1), 0, picture.Line16, aircraftFigure);
    const double lubberX = square.offset() + square.half();
    surface.place(picture.Line24, {lubberX, square.side() - square.side() * 0.86},
                  {lubberX, square.side() - square.side() * 0.71});
    surface.place(picture.Label2_3, {size * 0.04, size * 0.1});
    surface.place(picture.Label2_4, {size / 2 + size * 0.1, size / 2 - size * 0.1});
    surface.place(picture.Text1, {size * 0.34, size * 0.34});
}

Area numeralBox(const Label& numeral) {
    const double em = numeral.fontPoints * 20;
    const double width = 1.3 * em;
    const double height = 1.2 * em;
    return {numeral.anchor.x - width / 2, numeral.anchor.y - height / 2, width, height};
}

} // namespace tarnel
