#pragma once

#include "core/drawing_surface.h"
#include "core/plane_geometry.h"
#include "instruments/instrument_picture.h"

#include <cstdint>

namespace tarnel {

/// `point` turned by whole degrees about `centre`, clockwise on the screen.
[[nodiscard]] inline Point Rotate(std::int16_t angle, Point centre, Point point) {
    return RotatePoint(angle, centre, point);
}

/// Bearing (degrees clockwise from +y) and length in units of `scale` twips from one point to
/// another, y upwards. Throws the overflow error when a difference leaves 16 bits.
[[nodiscard]] inline Polar VectorAngleLength(double scale, ChartPoint from, ChartPoint to) {
    return MapToPolar(scale, from, to);
}

/// The square within a control on which a card and its needles are laid.
class CardSquare {
  public:
    CardSquare() = default;
    /// A square of `cardScale` times the control's width, with the same middle.
    CardSquare(double scaleWidth, double cardScale);

    [[nodiscard]] double half() const { return sizeW / 2.0; }
    [[nodiscard]] double side() const { return sizeW; }
    /// What a point of the square is moved by, in x and in y, to stand in the control.
    [[nodiscard]] double offset() const { return off; }
    /// A point of the square turned about its middle and rounded to whole twips, in the control.
    [[nodiscard]] Point turned(std::int16_t angle, Point point) const;

  private:
    std::int16_t sizeW = 0;
    double off = 0;
};

/// The size of a kind's card in parts of the control: 0.95, the HSI's 0.9, the gyro's 1.1.
[[nodiscard]] double cardScaleOf(InstrumentKind kind);

/// Where the ticks and numerals stand with the card turned by `angle` degrees.
void turnCard(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle);

/// The first needle of ADF and RMI, `angle` degrees from the top of the instrument.
void turnFirstNeedle(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle);

/// The second needle, `angle` degrees from the top; on the HSI it is longer and slimmer.
void turnSecondNeedle(InstrumentPicture& picture, std::int16_t angle, InstrumentKind kind);

void turnHeadingBug(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle);

/// The eleven deviation dots; the outermost mark full travel, a fifth of the square's side.
void turnDots(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle);

/// The VOR indicator's bar at `travel`, -1 to 1.
void placeBar(InstrumentPicture& picture, const CardSquare& square, double travel);

/// The HSI's course arrow and bar turned by `angle`, and its triangle by `triangleAngle` degrees.
void turnCourseArrow(InstrumentPicture& picture, const CardSquare& square, std::int16_t angle,
                     std::int16_t triangleAngle, double travel);

/// What never turns: the aircraft, the HSI's lubber line, flags and texts.
void placeFixedParts(InstrumentPicture& picture, const CardSquare& square);

/// The box of a numeral in which the card can be grabbed: 1.3 by 1.2 times its font's height.
[[nodiscard]] Area numeralBox(const Label& numeral);

} // namespace tarnel
