#pragma once

#include "core/property.h"
#include "instruments/digit_readout.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// `tvsmtimer`: the face of the stopwatch. It keeps no time: it shows the minutes and seconds that
/// it is given.
class tvsmtimer {
  public:
    tvsmtimer() { showTime(); }

    /// Asks for a new paint.
    void Refresh() { surface.touch(); }

    PropertyBag properties;
    DrawingSurface surface;
    DigitReadout digits{surface, readoutPlaces::minutesSeconds};

    /// In the form mm.ss.
    Property<std::string> minsec{properties, "minsec", "00.12", [this] { showTime(); }};
    Property<std::int32_t> BackColor{properties, "BackColor", 0, [this] { Refresh(); }};
    Property<std::int32_t> ForeColor{properties, "ForeColor", 0, [this] { Refresh(); }};
    Property<std::int16_t> Enabled{properties, "Enabled", 0, [this] { Refresh(); }};
    Property<std::string> Font{properties, "Font", "", [this] { Refresh(); }};
    Property<std::int16_t> BackStyle{properties, "BackStyle", 0, [this] { Refresh(); }};
    Property<std::int16_t> BorderStyle{properties, "BorderStyle", 0, [this] { Refresh(); }};

  private:
    void showTime();
};

} // namespace tarnel
