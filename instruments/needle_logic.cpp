#include "instruments/needle_logic.h"

#include "core/angle.h"
#include "core/rounding.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

double deviationIn(Sector sector, double course, double radial) {
    const double side = radial < course ? -1 : 1;
    double apart = std::abs(radial - course);
    if (apart > 90)
        apart -= sector == Sector::to ? 180 : 360;
    return sector == Sector::to ? side * apart : -side * apart;
}

} // namespace

std::string_view flagText(FlagState flag) {
    switch (flag) {
    case FlagState::to:
        return "TO";
    case FlagState::from:
        return "FROM";
    case FlagState::loc:
        return "LOC";
    case FlagState::none:
        break;
    }
    return {};
}

Receiver receiverFor(double locEn) {
    if (!(locEn < 0))
        return {};
    const double distance = std::abs(locEn) - 1;
    const int abeamSector = distance <= 10 ? 55 : distance <= 18 ? 80 : 90;
    return {true, toInt16(2.5), static_cast<std::int16_t>(abeamSector)};
}

Sector sectorOf(double course, double radial, std::int16_t abeamSector) {
    const double past = notNegative(radial - below360(course + 90));
    if (past > abeamSector && past < 180 - abeamSector)
        return Sector::to;
    if (past > 180 + abeamSector && past < 360 - abeamSector)
        return Sector::from;
    return Sector::abeam;
}

NeedleReading readNeedle(const Receiver& receiver, double course, double radial,
                         double frozenDeviation) {
    const Sector sector = sectorOf(course, radial, receiver.abeamSector);
    if (sector == Sector::abeam)
        return {sector, FlagState::loc, frozenDeviation};
    FlagState flag = sector == Sector::to ? FlagState::to : FlagState::from;
    if (receiver.localizer)
        flag = FlagState::loc;
    return {sector, flag, deviationIn(sector, course, radial)};
}

double barTravel(const Receiver& receiver, double deviation) {
    if (receiver.localizer && deviation < -35)
        deviation += 360;
    return std::clamp(deviation / receiver.fullScale, -1.0, 1.0);
}

} // namespace tarnel
