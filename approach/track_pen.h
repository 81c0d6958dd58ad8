#pragma once

#include "core/drawing_surface.h"

#include <vector>

namespace tarnel {

/// The offset on a sheet, y downwards, of a way on `course` degrees.
[[nodiscard]] Point onCourse(double course, double length);
[[nodiscard]] Point operator+(Point from, Point way);
[[nodiscard]] Point operator-(Point to, Point from);
[[nodiscard]] double lengthOf(Point way);
/// Degrees, 0 up to 360.
[[nodiscard]] double courseOf(Point way);

/// `TrackPen`: draws an aircraft's way over the ground: straight lines, and arcs that leave them
/// and lead back onto them without a corner. Lengths are those of the sheet.
class TrackPen {
  public:
    TrackPen(Point start, double firstCourse) : course(firstCourse), drawn{start} {}

    [[nodiscard]] Point at() const { return drawn.back(); }
    void straight(double length);
    /// Takes the course that leads there.
    void straightTo(Point target);
    /// Along an arc; `degrees` to the right are positive.
    void turn(double degrees, double radius);
    /// Straight on, and round a corner that lies ahead onto another course. The turn begins and
    /// ends as far from the corner as the radius asks for.
    void roundCorner(Point corner, double nextCourse, double radius);
    /// To one side until the way leads straight to `target`, and there. `target` must lie outside
    /// of the turn.
    void turnTo(Point target, bool right, double radius);

    double course; ///< degrees

    [[nodiscard]] const std::vector<Point>& track() const { return drawn; }

  private:
    std::vector<Point> drawn;
};

/// The outline of a holding pattern, from its fix round to it: legs so long, turns of a radius.
[[nodiscard]] std::vector<Point> racetrack(Point fix, double inbound, bool right, double leg,
                                           double radius);

} // namespace tarnel
