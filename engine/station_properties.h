#pragma once

#include "core/property.h"
#include "core/stations.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarnel {

/// The names under which the properties of one station slot are known, and its first identifier and
/// frequency. Names of what the slot lacks are empty.
struct StationPropertyNames {
    const char* name;
    const char* frequency;
    const char* enabled;
    const char* dmeEnabled;
    const char* radial;
    const char* dme;
    const char* dmeGroundSpeed;
    const char* firstName;
    const char* firstFrequency;
};

/// What one station slot offers: identifier and frequency as text, its enables (-1 on, 0 off), and
/// what its receiver measures at the aircraft.
struct StationProperties {
    StationProperties(PropertyBag& bag, const StationPropertyNames& names)
        : name(bag, names.name, names.firstName),
          frequency(bag, names.frequency, names.firstFrequency),
          enabled(bag, names.enabled, on),
          dmeEnabled(bag, names.dmeEnabled, on),
          radial(bag, names.radial),
          dme(bag, names.dme),
          dmeGroundSpeed(bag, names.dmeGroundSpeed) {}

    Property<std::string> name;
    Property<std::string> frequency;
    Property<std::int16_t> enabled;
    Property<std::int16_t> dmeEnabled;
    Property<double> radial;               ///< degrees, the aircraft from the station
    Property<double> dme;                  ///< NM, one decimal
    Property<std::int16_t> dmeGroundSpeed; ///< knots
};

/// The properties of the five station slots.
class StationSlots {
  public:
    explicit StationSlots(PropertyBag& bag);

    [[nodiscard]] StationProperties& slot(Slot which) { return inSlot(stationSlots, which); }
    [[nodiscard]] const StationProperties& slot(Slot which) const {
        return inSlot(stationSlots, which);
    }
    [[nodiscard]] StationProperties& slot(std::size_t index) { return stationSlots[index]; }
    [[nodiscard]] const StationProperties& slot(std::size_t index) const {
        return stationSlots[index];
    }

  private:
    std::array<StationProperties, slotCount> stationSlots;
};

} // namespace tarnel
