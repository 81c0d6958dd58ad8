#pragma once

#include "core/property.h"
#include "instruments/digit_readout.h"
#include "instruments/knob_drag.h"

#include <cstdint>

namespace tarnel {

/// The turn rate in degrees a second, right is positive, that takes an aircraft on heading `actual`
/// the short way to `selected`, both 0 to 360: 3 until 6 degrees away, then 1; 0 when both are
/// equal to one decimal. Across north it stays 3.
[[nodiscard]] std::int16_t headingHoldRate(double selected, double actual);

/// The autopilot's knobs: `Image11`, `Image12` and `Image13`.
enum class AutopilotKnob { none, heading, airSpeed, altitude };

/// `APControlFace`: the autopilot: it sets heading, air speed and altitude, and holds the heading.
///
/// Its knobs act while `c_LockSettings` and `c_OnOff` are both 1. A drag counts sideways: with the
/// left button 100 twips are a degree of heading, or set a rate at which `Timer1` drives speed or
/// altitude; with any other 900 twips are one degree, 5 knots or 500 feet.
class APControlFace {
  public:
    static constexpr double maximumTAS = 360; ///< knots
    static constexpr double minimumTAS = 50;  ///< knots; what is slower stands still
    static constexpr double maximumALT = 420; ///< hundreds of feet

    /// A press on a knob, `x` in twips from its left edge.
    void mouseDown(AutopilotKnob knob, double x);
    void mouseMove(double x, MouseButton held);
    void mouseUp();
    /// On the heading knob: the selected heading becomes the actual one, locked or not.
    void doubleClick(AutopilotKnob knob);

    void stepHeading(int degrees);
    /// From 0 a step up goes to 50 knots.
    void stepTAS(int knots);
    void stepALT(int hundredsOfFeet);

    /// Whether a drag has set a rate for speed or altitude.
    [[nodiscard]] bool drives() const {
        return c_startTimer == 1 && knobsAct() && (tasRate != 0 || altRate != 0);
    }
    /// A few times a second while it `drives`: takes speed and altitude on by those rates.
    void Timer1();

    [[nodiscard]] bool knobsAct() const { return c_LockSettings == 1 && c_OnOff == 1; }

    PropertyBag properties;
    DrawingSurface surface;
    DigitReadout headingDigits{surface, readoutPlaces::threeDigits};
    DigitReadout airSpeedDigits{surface, readoutPlaces::threeDigits};
    DigitReadout altitudeDigits{surface, readoutPlaces::threeDigits};

    Property<double> c_HDG{properties, "c_HDG", 0, [this] { headingWasSet(); }};
    Property<double> c_ActualHDG{properties, "c_ActualHDG", 0, [this] { holdHeading(); }};
    Property<double> c_TAS{properties, "c_TAS", 0, [this] { airSpeedWasSet(); }};
    Property<double> c_ALT{properties, "c_ALT", 0, [this] { altitudeWasSet(); }};
    Property<std::int16_t> c_APTurnrate{properties, "c_APTurnrate"};
    Property<std::int16_t> c_startTimer{properties, "c_startTimer"};
    Property<std::int16_t> c_HDGChange{properties, "c_HDGChange"};
    Property<std::int16_t> c_LockSettings{properties, "c_LockSettings"};
    Property<std::int16_t> c_OnOff{properties, "c_OnOff"};
    Property<std::int16_t> c_NAVFace{properties, "c_NAVFace", 1, [this] { surface.touch(); }};
    Property<std::int16_t> BackColor{properties, "BackColor"};

  private:
    void headingWasSet();
    void airSpeedWasSet();
    void altitudeWasSet();
    void holdHeading();
    void turnHeading(double heading);
    void turnAirSpeed(double knots);
    void turnAltitude(double hundredsOfFeet);
    void dragHeading(double x, MouseButton held);
    void dragAirSpeed(double x, MouseButton held);
    void dragAltitude(double x, MouseButton held);

    AutopilotKnob pressed = AutopilotKnob::none;
    KnobDrag hdgDrag;
    KnobDrag tasDrag{120};
    KnobDrag altDrag{60};
    std::int16_t tasRate = 0; ///< knots a tick of `Timer1`
    std::int16_t altRate = 0; ///< hundreds of feet a tick
    double selectedHeading = 0;
    double tasValue = 0;
    double altValue = 0; ///< hundreds of feet
};

} // namespace tarnel
