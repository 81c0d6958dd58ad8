#pragma once

#include "core/property.h"
#include "instruments/instrument_layout.h"
#include "instruments/instrument_mouse.h"
#include "instruments/instrument_picture.h"
#include "instruments/needle_logic.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tarnel {

/// What an instrument reads, for those who can't see it.
struct InstrumentReading {
    std::int16_t display = 0; ///< the kind
    double cardHeading = 0;   ///< under the lubber line, degrees 0 to 360
    double course = 0;        ///< under the index or the course arrow, degrees
    double deviation = 0;     ///< degrees, positive is bar to the right
    FlagState flag = FlagState::none;
    bool received = false; ///< false in the abeam sector and out of a localizer's reach
};

/// `UserControl_1`: one panel instrument in any of five kinds: ADF, RMI, VOR indicator, HSI or
/// directional gyro.
///
/// Set `c_MainAppPath` first, then `c_Large`, `c_NAVselect`, `c_ADFCardselect`, then `Display`. On
/// each tick set `adf2radial`, `adfradial`, `c_LOCEN` and `c_OBS`, then `c_HDG`, `angle` and
/// `c_OBS_x`, the last three of which redraw. With nothing changed a redraw costs some comparisons.
class UserControl_1 {
  public:
    UserControl_1();

    /// Gives all parts the look of the present kind. A number that is no kind is reported through
    /// `showMessage`, and nothing else changes.
    void Initialize_Display();
    /// Flag, deviation and all that turns with the course, for a VOR indicator or HSI on `radial`.
    /// Everything in degrees; on the HSI the course arrow is turned by `courseX` + `heading`.
    void VOR(double course, double courseX, double heading, double radial);
    /// Loads the VOR indicator's background: 1 TO, 2 FROM, 3 localizer or no flag.
    void LoadVORDisplay(std::int16_t flagKind);
    /// Turns the heading bug to `bugAngle` degrees from the top of the instrument.
    void DrawHDGbug(std::int16_t bugAngle);
    /// Moves what shows something that has changed since the last update.
    void UpdateInstrument();

    [[nodiscard]] InstrumentReading reading() const;
    /// Whether a course can be read here: on a VOR indicator and an HSI.
    [[nodiscard]] bool showsCourse() const {
        return is(InstrumentKind::vor) || is(InstrumentKind::hsi);
    }
    /// Whether the hand may turn that course. The arrow of an HSI on a localizer shows the
    /// localizer's, and one that is not seen is not turned.
    [[nodiscard]] bool turnsCourse() const {
        return showsCourse() && !(is(InstrumentKind::hsi) && c_LOCEN < 0);
    }

    /// Shows a message box. May be empty.
    std::function<void(const std::string&)> showMessage;

    PropertyBag properties;

    Property<std::int32_t> angle{properties, "angle", 0, [this] { UpdateInstrument(); }};
    Property<double> adfradial{properties, "adfradial"};
    Property<std::int16_t> c_HDG{properties, "c_HDG", 0, [this] { UpdateInstrument(); }};
    Property<std::int16_t> Display{properties, "Display", 0, [this] { switchDisplay(); }};
    Property<std::int16_t> BackStyle{properties, "BackStyle"};
    Property<std::int16_t> Enabled{properties, "Enabled"};
    Property<std::int16_t> c_LabelEN1{properties, "c_LabelEN1"};
    Property<std::int16_t> c_LabelEN2{properties, "c_LabelEN2"};
    Property<std::int16_t> c_LabelEN3{properties, "c_LabelEN3"};
    Property<std::int16_t> c_LabelEN4{properties, "c_LabelEN4"};
    Property<std::string> c_LabelText1{properties, "c_LabelText1", "0"};
    Property<std::string> c_LabelText2{properties, "c_LabelText2", "0"};
    Property<std::string> c_LabelText3{properties, "c_LabelText3", "0"};
    Property<std::string> c_LabelText4{properties, "c_LabelText4", "0"};
    Property<std::string> c_LabelText5{properties, "c_LabelText5", "0"};
    Property<std::string> c_LabelText6{properties, "c_LabelText6", "0"};
    Property<double> c_LOCEN{properties, "c_LOCEN", 0, [this] { lockKnobs(); }};
    Property<double> c_OBS_x{properties, "c_OBS_x", 0, [this] { UpdateInstrument(); }};
    Property<std::string> Picture{properties, "Picture"};
    Property<std::int16_t> c_Large{properties, "c_Large", 0, [this] { resize(); }};
    Property<std::int16_t> c_HDGbug{properties, "c_HDGbug", 0,
                                    [this] { mouse.headingBugWasSet(); }};
    Property<std::int16_t> c_HDGbugChange{properties, "c_HDGbugChange"};
    Property<std::int16_t> c_NAVselect{properties, "c_NAVselect", 1, [this] { loadBackground(); }};
    Property<std::int16_t> c_ADFCardselect{properties, "c_ADFCardselect", fixedCard,
                                           [this] { loadBackground(); }};
    Property<std::int16_t> c_OBSKnobchange{properties, "c_OBSKnobchange"};
    Property<std::string> c_MainAppPath{properties, "c_MainAppPath"};
    Property<double> c_OBS{properties, "c_OBS"};
    Property<double> c_MouseOBS{properties, "c_MouseOBS", 0, [this] { mouse.mouseObsWasSet(); }};
    Property<double> c_MouseOBS_HSI{properties, "c_MouseOBS_HSI"};
    Property<std::int16_t> c_DisableKnobs{properties, "c_DisableKnobs", 1, [this] { lockKnobs(); }};
    Property<double> adf2radial{properties, "adf2radial"};
    Property<std::int16_t> c_RMIoverlayEN{properties, "c_RMIoverlayEN"};

    InstrumentPicture picture;
    InstrumentMouse mouse{*this};

  private:
    /// The inputs as last drawn.
    struct Drawn {
        double adfradial = 0;
        double adf2radial = 0;
        double c_OBS = 0;
        double c_OBS_x = 0;
        std::int16_t c_HDG = 0;
        std::optional<std::int16_t> needle2;
        std::optional<std::int16_t> bug;
    };

    [[nodiscard]] bool is(InstrumentKind kind) const {
        return Display == static_cast<std::int16_t>(kind);
    }
    [[nodiscard]] std::optional<InstrumentKind> kind() const;
    void switchDisplay();
    void resize();
    void lockKnobs();
    void loadBackground();
    void showCourseKnob();
    void showFlag(const NeedleReading& needle, bool localizer);
    void updateDeviation();
    void updateSecondNeedle();
    void updateFirstNeedle();
    void updateCard();

    CardSquare square;
    Drawn drawn;
    std::int32_t lastAngle = -1; ///< no angle of a card: the next update draws it
    std::int16_t forceRedraw = 0;
    FlagState flagState = FlagState::none;
    Sector sector = Sector::abeam;
    std::int16_t cdiDeviation = 0; ///< whole degrees: what the bar freezes at
    double deviation = 0;          ///< what the bar shows
    std::int16_t hsiRotation = 0;
    std::int16_t lastHsiRotation = 0;
};

} // namespace tarnel
