#pragma once

#include "instruments/user_control_1.h"

#include <cstdint>

namespace tarnel {

/// An instrument set up as the panel does it.
struct PanelInstrument : UserControl_1 {
    explicit PanelInstrument(InstrumentKind kind, std::int16_t large = 0) {
        c_MainAppPath = "pictures";
        c_Large = large;
        Display = static_cast<std::int16_t>(kind);
    }

    /// One tick's feed in its usual order.
    void feed(double radial, double obs, std::int16_t headingTerm, std::int32_t cardAngle,
              double locEn = 0) {
        adfradial = radial;
        adf2radial = radial;
        c_LOCEN = locEn;
        c_OBS = obs;
        c_HDG = headingTerm;
        angle = cardAngle;
        c_OBS_x = obs;
    }
};

} // namespace tarnel
