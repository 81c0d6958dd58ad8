#pragma once

#include "core/property.h"
#include "instruments/digit_readout.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarnel {

/// A press on a face: a click as long as it trembles by up to 60 twips, beyond that a drag.
class FacePress {
  public:
    void press(Point at) {
        start = at;
        moved = false;
        held = true;
    }
    void move(Point at);
    /// Ends the press; true if it was a click.
    bool release();

    [[nodiscard]] bool active() const { return held; }
    [[nodiscard]] bool dragged() const { return moved; }
    /// Whether the way since the press is rather down or up than sideways.
    [[nodiscard]] bool upright(Point at) const;

  private:
    Point start;
    bool moved = false;
    bool held = false;
};

/// A receiver's face: it holds up to three frequencies, and its knob chooses among them. A click
/// steps up; a drag steps once for every 700 twips to the right (up) or left (down). Positions are
/// twips from the left upper corner of the knob.
class RadioFace {
  public:
    void mouseDown(Point at);
    void mouseMove(Point at);
    void mouseUp();
    void mouseLost(); ///< the press ended without being a click

    /// The next or previous frequency, round and round. Only while `c_LockSettings` and `c_OnOff`
    /// are both 1.
    void stepUp();
    void stepDown();

    void ShowFrequency(std::string_view text) { frequency.show(text); }
    void BlankFrequency() { frequency.blank(); }

    [[nodiscard]] std::int32_t dialPosition() const { return dialIndex; }
    [[nodiscard]] bool knobActs() const { return c_LockSettings == 1 && c_OnOff == 1; }

    PropertyBag properties;
    DrawingSurface surface;
    DigitReadout frequency;

    Property<std::string> c_Freq1{properties, "c_Freq1", unset};
    Property<std::string> c_Freq2{properties, "c_Freq2", unset};
    Property<std::string> c_Freq3{properties, "c_Freq3", unset};
    Property<std::int16_t> c_NumberOfFreqs{properties, "c_NumberOfFreqs"};
    Property<std::int32_t> c_SetFreq{properties, "c_SetFreq", 0, [this] { selectSlot(); }};
    Property<std::int16_t> c_OnOff{properties, "c_OnOff"};
    Property<std::int16_t> c_LockSettings{properties, "c_LockSettings"};
    Property<std::int16_t> c_NAVFace{properties, "c_NAVFace", 1, [this] { surface.touch(); }};

  protected:
    RadioFace(std::span<const std::size_t> places, std::int16_t slots);

    /// The text of a slot, 0 to 3; empty for any other.
    [[nodiscard]] std::string_view slotText(std::int32_t slot) const;
    void showDialSlot() { ShowFrequency(slotText(dialIndex)); }

    std::int32_t dialIndex = 0;

  private:
    static constexpr const char* unset = "888.88";

    void selectSlot();
    void turnDial(std::int32_t slot);
    void dragTo(double x);

    FacePress press;
    std::int16_t dragStartX = 0;
    std::int32_t dragStep = 0;
};

/// `NAVControlFace`: a NAV receiver with five digits.
class NAVControlFace : public RadioFace {
  public:
    NAVControlFace() : RadioFace(readoutPlaces::frequency, 1) {}
};

/// `ADFControlFace`: an ADF receiver with three digits.
class ADFControlFace : public RadioFace {
  public:
    ADFControlFace() : RadioFace(readoutPlaces::threeDigits, 1) {}
};

} // namespace tarnel
