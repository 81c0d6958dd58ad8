#pragma once

#include "debrief/judgement.h"

namespace tarnel {

/// `CourseFrame`: a course over a station as its needle shows it, and the limits of that needle.
class CourseFrame {
  public:
    CourseFrame(const FlownPath& flown, double courseFlown, bool towards)
        : path(flown), course(courseFlown), inbound(towards) {}

    const FlownPath& path;
    const double course;
    const bool inbound;

    /// Degrees at the station that the aircraft is right of the line, -180 to 180: beyond 90 the
    /// station lies on the wrong side.
    [[nodiscard]] double deviation(int i) const;
    /// NM to the right of the line.
    [[nodiscard]] double cross(int i) const { return path.from(i).crossTrack(course); }
    /// Whether the station is still ahead where the line leads to it, behind where it leads away.
    [[nodiscard]] bool onThisSide(int i) const;
    /// Degrees from the heading that holds the course to the one that is flown.
    [[nodiscard]] double headingOff(int i) const;

    /// Degrees, from rows of a VOR or localizer, and of an NDB.
    [[nodiscard]] double limit(const Judgement& judgement, Limit ofNeedle, Limit ofBeacon) const;
    [[nodiscard]] double established(const Judgement& judgement) const {
        return limit(judgement, Limit::established, Limit::establishedNdb);
    }
    [[nodiscard]] double kept(const Judgement& judgement) const {
        return limit(judgement, Limit::kept, Limit::keptNdb);
    }
    /// Of the needle; on a beacon as on a VOR.
    [[nodiscard]] double fullScale() const;

    /// The first sample from `from` to `to` where the aircraft is on the line along it, and stays
    /// so for ten seconds; -1 if there is none.
    [[nodiscard]] int establishedAt(int from, int to, double within) const;

    /// The needle's series; beyond a quarter of a circle it has no value.
    Series& plot(Judgement& judgement) const;
    /// The DME's distance, or where the station has none, how far off the line it is.
    void plotDistance(Judgement& judgement) const;
    /// NM from the station, at least one.
    [[nodiscard]] double farthest() const;
    /// The line on its side of the station, so many miles long.
    [[nodiscard]] TaskLine line(double miles) const;
    /// What lies within so many degrees of it.
    [[nodiscard]] TaskLine corridor(double degrees, double miles) const;

  private:
    [[nodiscard]] bool isOnLine(int i, double within) const;
    /// On this side of the station, so many degrees right of the line.
    [[nodiscard]] GeoPosition placeAside(double degrees, double miles) const;
};

} // namespace tarnel
