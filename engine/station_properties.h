#pragma once

#include "core/property.h"
#include "core/stations.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// The names under which the properties of one station slot are known. Those that the slot lacks
/// are empty.
struct StationPropertyNames {
    const char* name;
    const char* frequency;
    const char* enabled;
    const char* dmeEnabled;
    const char* radial;
    const char* dme;
    const char* dmeGroundSpeed;
};

/// What one station slot offers: identifier and frequency as text, its enables (-1 on, 0 off), and
/// what its receiver measures at the aircraft.
struct StationProperties {
    StationProperties(PropertyBag& bag, const StationPropertyNames& names, std::string identifier,
                      std::string frequencyText, const Property<std::string>::Effect& relabel,
                      const Property<std::int16_t>::Effect& onOff)
        : name(bag, names.name, std::move(identifier), relabel),
          frequency(bag, names.frequency, std::move(frequencyText), relabel),
          enabled(bag, names.enabled, on, onOff),
          dmeEnabled(bag, names.dmeEnabled, on, onOff),
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

} // namespace tarnel
