#pragma once

#include "instruments/radio_face.h"

namespace tarnel {

/// What a DME's frequency follows: its own knob, or one of the NAV receivers.
enum class DmeMode { freq, r1, r2 };

/// `DMEControlFace`: the DME: a receiver's face with a selector and readouts of distance and speed.
class DMEControlFace : public RadioFace {
  public:
    DMEControlFace() : RadioFace(readoutPlaces::frequency, 0) {}

    /// "--.-" is no signal.
    void ShowDistance(std::string_view text);
    /// "---" is no signal.
    void ShowSpeed(std::string_view text);
    /// Darkens all three readouts, until something is written to them.
    void BlankDisplay();

    /// A click on a position of the selector: `Image13` Freq, `Image14` R1, `Image15` R2.
    void selectMode(DmeMode next);
    [[nodiscard]] DmeMode mode() const { return selected; }

    /// A press, drag and release on a position of the selector, in twips from its left upper
    /// corner. A drag counts along the axis on which it has gone further.
    void selectorDown(DmeMode area, Point at);
    void selectorMove(Point at);
    void selectorUp();
    void selectorLost(); ///< the press ended without being a click

    DigitReadout distance{surface, readoutPlaces::threeDigits};
    DigitReadout speed{surface, readoutPlaces::threeDigits};

    /// Whether the distance has grown too long for its tenths: from 100 NM it is whole miles,
    /// without the point.
    [[nodiscard]] bool wholeMiles() const { return c_DMEnm >= tooLongForTenths; }

    /// What `c_DMEnm` says where nothing is received.
    static constexpr std::int16_t noSignal = -1;
    /// The longest distance that three digits hold, 999 NM.
    static constexpr std::int16_t longest = 9999;

    /// Tenths of NM, `noSignal` or 0 to `longest`.
    Property<std::int16_t> c_DMEnm{properties, "c_DMEnm", 0, [this] { showReading(); }};
    Property<std::int16_t> c_DMEkt{properties, "c_DMEkt", 0, [this] { showSpeed(); }};
    Property<std::int16_t> c_BlankDisplay{properties, "c_BlankDisplay", 0,
                                          [this] { BlankDisplay(); }};
    Property<std::int16_t> c_NAV1f{properties, "c_NAV1f", 0,
                                   [this] { follow(DmeMode::r1, c_NAV1f); }};
    Property<std::int16_t> c_NAV2f{properties, "c_NAV2f", 0,
                                   [this] { follow(DmeMode::r2, c_NAV2f); }};
    Property<std::int16_t> c_vor1on{properties, "c_vor1on"};
    Property<std::int16_t> c_vor2on{properties, "c_vor2on"};
    Property<std::int16_t> c_loc1on{properties, "c_loc1on"};

  private:
    static constexpr std::int16_t tooLongForTenths = 1000;

    void showReading();
    void showSpeed();
    void follow(DmeMode receiver, std::int16_t slot);

    DmeMode selected = DmeMode::freq;
    DmeMode pressedPosition = DmeMode::freq;
    FacePress selectorPress;
};

} // namespace tarnel
