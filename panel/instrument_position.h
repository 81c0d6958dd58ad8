#pragma once

#include "controls/form_controls.h"
#include "core/property.h"
#include "instruments/user_control_1.h"

#include <cstdint>

namespace tarnel {

/// The values of `Display`, `c_inst2` and `c_inst3`.
constexpr auto adf = static_cast<std::int16_t>(InstrumentKind::adf);
constexpr auto rmi = static_cast<std::int16_t>(InstrumentKind::rmi);
constexpr auto vor = static_cast<std::int16_t>(InstrumentKind::vor);
constexpr auto hsi = static_cast<std::int16_t>(InstrumentKind::hsi);
constexpr auto dg = static_cast<std::int16_t>(InstrumentKind::dg);

/// The holder flag of a position for one VOR.
enum ObsHold : std::int16_t { notOnVor = 0, overtaken = 1, holdsObs = 2 };

/// The station, or pair of stations, that the labels of each kind of instrument name.
struct InstrumentChannels {
    std::int16_t adf = 1; ///< 1, 2: NDB 1, NDB 2
    std::int16_t rmi = 1; ///< 1 to 6: the pair of pointers
    std::int16_t vor = 1; ///< 1 to 3: VOR 1, VOR 2, localizer
    std::int16_t hsi = 1; ///< the same
    std::int16_t dg = 1;  ///< 1 to 4: none, DME 1 to DME 3
};

/// A place on the panel that can show any instrument, with what the coupling keeps of it.
struct InstrumentPosition {
    UserControl_1 instrument;
    std::int16_t type = 0;
    std::int16_t typeSeen = 0; ///< the type that its list was last set to
    std::int16_t navSel = 1;   ///< the receiver that drives it
    double obs = 0;            ///< course of its VOR indicator, degrees
    double obsHsi = 0;         ///< course of its HSI, degrees
    double adfCard = 0;        ///< at the top of its ADF's fixed card, degrees
    double mouseObsSeen = 0;
    InstrumentChannels channels;
    ObsHold vor1Hold = notOnVor;
    ObsHold vor2Hold = notOnVor;

    /// What the knob of the present kind turns: an ADF's fixed card, else the course.
    [[nodiscard]] double dial() const;
    /// Turns that dial, as a replay does; the knob counts on from there.
    void setDial(double degrees);
    /// Takes the dial to where the knob was turned since the last call.
    void followKnob();
    /// Changes the kind. An ADF's card begins at north, and the knob counts on from the dial.
    void setType(std::int16_t next);

  private:
    void matchKnob();
};

/// Whether its instrument shows a course, so that it can hold the OBS of a VOR.
[[nodiscard]] inline bool showsCourse(const InstrumentPosition& position) {
    return position.type == vor || position.type == hsi;
}
[[nodiscard]] inline bool holdsAnObs(const InstrumentPosition& position) {
    return position.vor1Hold == holdsObs || position.vor2Hold == holdsObs;
}

/// What belongs to a panel position elsewhere: its widgets, and its properties of the simulation.
struct PositionLinks {
    InstrumentPosition& position;
    CommandButton& channelButton;
    SelectionList& typeList;
    CheckBox& overlayBox;
    CheckBox& radialBox;
    Property<std::int16_t>& instType;    ///< `c_inst2` or `c_inst3`
    Property<std::int16_t>& navSelect;   ///< `c_Inst2NAVselect` or `c_Inst3NAVselect`
    Property<std::int16_t>& cardSelect;  ///< `c_Inst2_ADFCardselect` or `c_Inst3_ADFCardselect`
    Property<std::int16_t>& radialShown; ///< `c_NAVRadI2` or `c_NAVRadI3`
    Property<double>& courseOnChart;     ///< `c_obsI2` or `c_obsI3`
};

} // namespace tarnel
