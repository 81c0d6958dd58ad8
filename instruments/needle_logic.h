#pragma once

#include <cstdint>
#include <string_view>

namespace tarnel {

/// What a deviation instrument flags. `loc` also stands for no flag: both show the same picture.
enum class FlagState { none, to, from, loc };

/// "TO", "FROM", "LOC" or nothing.
[[nodiscard]] std::string_view flagText(FlagState flag);

/// How a receiver judges a radial.
struct Receiver {
    bool localizer = false;
    std::int16_t fullScale = 10;  ///< degrees of deviation at full needle travel
    std::int16_t abeamSector = 2; ///< degrees either side of abeam without a flag, limits included
};

/// The receiver that `locEn` asks for: a VOR if it is 0 or more, else a localizer at -`locEn` - 1
/// NM, which is received within 35 degrees of its course line up to 10 NM, within 10 degrees up to
/// 18 NM, and not at all beyond.
[[nodiscard]] Receiver receiverFor(double locEn);

/// On which side of the line abeam the station the aircraft is, as seen along the course.
enum class Sector { to, from, abeam };

/// The sector of an aircraft on `radial` with `course` selected, degrees 0 to 360.
[[nodiscard]] Sector sectorOf(double course, double radial, std::int16_t abeamSector);

struct NeedleReading {
    Sector sector = Sector::abeam;
    FlagState flag = FlagState::loc;
    double deviation = 0; ///< degrees, positive is bar to the right
};

/// What the needle reads. In the abeam sector it stays frozen at `frozenDeviation`.
[[nodiscard]] NeedleReading readNeedle(const Receiver& receiver, double course, double radial,
                                       double frozenDeviation);

/// Where the bar stands for a deviation: -1 (left stop) to 1 (right stop), linear between. A
/// localizer takes deviations below -35 as 360 more, so they pin to the right.
[[nodiscard]] double barTravel(const Receiver& receiver, double deviation);

} // namespace tarnel
