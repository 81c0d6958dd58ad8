#include "chart/chart_framing.h"

#include "chart/map_view.h"
#include "core/plane_geometry.h"
#include "core/sailing.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace tarnel {

namespace {

constexpr double featherRoom = 150; ///< more than half its width there
constexpr double featherMiles = 8;  ///< from the localizer to where an approach is intercepted

/// The chart measures from its centre, so its offsets change a little when the centre moves.
constexpr int rounds = 4;

/// Offsets from a centre in NM, to the right and down, and the room about each in twips.
struct Extent {
    Point offset;
    double room = 0;
};

struct Box {
    double left = std::numeric_limits<double>::infinity();
    double top = left;
    double right = -left;
    double bottom = -left;

    [[nodiscard]] double width() const { return right - left; }
    [[nodiscard]] double height() const { return bottom - top; }
};

std::vector<Extent> extentsFrom(const SplitPosition& centre, std::span<const FramedPlace> places) {
    constexpr double twipsPerMile = 1000; // whole twips: offsets are good to a thousandth
    std::vector<Extent> extents;
    for (const FramedPlace& place : places) {
        const CourseDistance leg = CourseAndDistance(toPlain(centre), place.position);
        const Point twips = chartOffset(leg.course, leg.distance, twipsPerMile);
        if (std::isfinite(twips.x) && std::isfinite(twips.y))
            extents.push_back({{twips.x / twipsPerMile, twips.y / twipsPerMile}, place.room});
    }
    return extents;
}

Box boxAt(double scale, std::span<const Extent> extents) {
    Box box;
    for (const auto& [offset, room] : extents) {
        box.left = std::min(box.left, scale * offset.x - room);
        box.right = std::max(box.right, scale * offset.x + room);
        box.top = std::min(box.top, scale * offset.y - room);
        box.bottom = std::max(box.bottom, scale * offset.y + room);
    }
    return box;
}

std::int16_t largestScale(std::span<const Extent> extents, const FramedPaper& paper) {
    std::int16_t fitting = 1;
    std::int16_t tooLarge = *std::rbegin(MapView::offeredScales) + 1;
    while (tooLarge - fitting > 1) {
        const auto tried = static_cast<std::int16_t>((fitting + tooLarge) / 2);
        const Box box = boxAt(tried, extents);
        const bool fits = box.width() <= paper.size &&
                          box.height() <= paper.size - paper.freeAbove - paper.freeBelow;
        (fits ? fitting : tooLarge) = tried;
    }
    return fitting;
}

/// The position of the point that lies `right` and `down` twips from `centre`.
SplitPosition moved(const SplitPosition& centre, double right, double down, double scale) {
    Polar way = polarOf(right, -down, scale);
    return DeadReckon(centre, way.distance, way.course).split;
}

} // namespace

std::vector<FramedPlace> framedStations(const Stations& stations, double locCourse) {
    std::vector<FramedPlace> places;
    for (const Station& station : stations)
        places.push_back({toPlain(station.position), framedStationRoom});
    const SplitPosition& localizer = inSlot(stations, Slot::localizer).position;
    places.push_back({DeadReckon(localizer, featherMiles, locCourse).plain, featherRoom});
    return places;
}

ChartFraming framingOf(std::span<const FramedPlace> places, const FramedPaper& paper) {
    ChartFraming framing{toSplit(places.front().position)};
    for (int round = 0; round < rounds; ++round) {
        const std::vector<Extent> extents = extentsFrom(framing.centre, places);
        if (extents.empty())
            break;
        framing.scale = largestScale(extents, paper);
        const Box box = boxAt(framing.scale, extents);
        framing.centre =
            moved(framing.centre, (box.left + box.right) / 2,
                  (box.top + box.bottom - paper.freeAbove + paper.freeBelow) / 2, framing.scale);
    }
    return framing;
}

} // namespace tarnel
