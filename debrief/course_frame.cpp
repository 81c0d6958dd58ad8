#include "debrief/course_frame.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tarnel {

double CourseFrame::deviation(int i) const {
    const FromStation& seen = path.from(i);
    const double ahead = seen.alongTrack(course) * (inbound ? -1 : 1);
    return std::atan2(seen.crossTrack(course), ahead) / std::numbers::pi * 180;
}

bool CourseFrame::onThisSide(int i) const {
    return path.from(i).alongTrack(course) * (inbound ? -1 : 1) > 0;
}

double CourseFrame::headingOff(int i) const {
    const double correction = triangleAt(path, i, course).correction;
    return turnBetween(course + (std::isnan(correction) ? 0 : correction), path.heading(i));
}

/// As the instruments show it.
double CourseFrame::fullScale() const {
    return path.station() == Slot::localizer ? 2 : 10;
}

double CourseFrame::limit(const Judgement& judgement, Limit ofNeedle, Limit ofBeacon) const {
    return path.isBeacon() ? judgement.limit(ofBeacon) : judgement.limit(ofNeedle) * fullScale();
}

bool CourseFrame::isOnLine(int i, double within) const {
    constexpr double along = 25; ///< degrees
    return std::abs(deviation(i)) <= within && std::abs(headingOff(i)) <= along;
}

int CourseFrame::establishedAt(int from, int to, double within) const {
    constexpr int wanted = 8;
    constexpr int wantedAtTheEnd = 4;
    int run = 0;
    for (int i = std::max(from, 0); i <= to; ++i) {
        run = isOnLine(i, within) ? run + 1 : 0;
        if (run == wanted || (i == to && run >= wantedAtTheEnd))
            return i - run + 1;
    }
    return -1;
}

Series& CourseFrame::plot(Judgement& judgement) const {
    return judgement.series(SeriesKind::needle, FindingUnit::degrees,
                            [this](int i) -> std::optional<double> {
                                const double aside = deviation(i);
                                return std::abs(aside) <= 90 ? std::optional(-aside) : std::nullopt;
                            });
}

void CourseFrame::plotDistance(Judgement& judgement) const {
    if (path.isBeacon())
        judgement.series(SeriesKind::offLine, FindingUnit::nauticalMiles,
                         [this](int i) { return -cross(i); });
    else
        judgement.series(SeriesKind::distance, FindingUnit::nauticalMiles,
                         [this](int i) { return path.dme(i); });
}

double CourseFrame::farthest() const {
    double miles = 1;
    for (int i = 0; i < path.size(); ++i)
        miles = std::max(miles, path.from(i).distance);
    return miles;
}

GeoPosition CourseFrame::placeAside(double degrees, double miles) const {
    const double away = course + (inbound ? 180 : 0);
    return placeOn(path.place(), {circle(away + degrees), miles});
}

TaskLine CourseFrame::line(double miles) const {
    const GeoPosition far = placeAside(0, miles);
    return {TaskLineKind::line,
            inbound ? std::vector{far, path.place()} : std::vector{path.place(), far}};
}

TaskLine CourseFrame::corridor(double degrees, double miles) const {
    return {TaskLineKind::corridor,
            {path.place(), placeAside(-degrees, miles), placeAside(degrees, miles), path.place()}};
}

} // namespace tarnel
