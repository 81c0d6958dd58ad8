#pragma once

#include "core/property.h"
#include "engine/station_properties.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// A few properties of one subject; `UserControl2` connects what a set of them does.
class PropertyGroup {
  public:
    explicit PropertyGroup(PropertyBag& owner) : bag(owner) {}

  protected:
    PropertyBag& bag;
};

/// The flight and its autopilot. A set refreshes the picture without moving the aircraft.
struct FlightProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::int16_t> Turn_Rate{bag, "Turn_Rate"};
    Property<std::int16_t> c_TAS{bag, "c_TAS"};
    Property<double> c_Altitude{bag, "c_Altitude"};
    Property<double> c_HDG{bag, "c_HDG"};
    Property<std::int16_t> c_HDGbug{bag, "c_HDGbug"};
    Property<std::int16_t> c_HDGchanged{bag, "c_HDGchanged"};
    Property<std::int16_t> c_APhdg{bag, "c_APhdg"};
    Property<std::int16_t> c_APtas{bag, "c_APtas"};
    Property<std::int16_t> c_APalt{bag, "c_APalt"};
    Property<std::int16_t> c_FlyEN{bag, "c_FlyEN"};
    Property<std::int16_t> c_PractiseStopFly{bag, "c_PractiseStopFly"};
};

/// The simulation's clock, the stopwatch and the flight time. `c_TimerSIMrate` is the real time of
/// one tick in milliseconds.
struct ClockProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::int16_t> c_TimerEN{bag, "c_TimerEN"};
    Property<std::int16_t> c_TimerSIMrate{bag, "c_TimerSIMrate", 333};
    Property<std::int16_t> c_ResetTimer{bag, "c_ResetTimer", 1};
    Property<std::int16_t> c_Timer_on_off{bag, "c_Timer_on_off"};
    Property<std::int16_t> c_ApSeconds{bag, "c_ApSeconds"};
    Property<std::int16_t> c_ApMinutes{bag, "c_ApMinutes"};
    Property<std::int16_t> c_ApSeconds2{bag, "c_ApSeconds2"};
    Property<std::int16_t> c_ApMinutes2{bag, "c_ApMinutes2"};
    Property<std::int16_t> c_ApHours2{bag, "c_ApHours2"};

    [[nodiscard]] bool stopped() const { return c_TimerEN == 0; }
};

/// The receivers: 0 VOR 1, 1 VOR 2, 2 localizer; ADF 0 NDB 1, 1 NDB 2. What the instruments show
/// of them, kept for the recording.
struct ReceiverProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::int16_t> c_NAV1freq{bag, "c_NAV1freq"};
    Property<std::int16_t> c_NAV2freq{bag, "c_NAV2freq"};
    Property<std::int16_t> c_ADFfreq{bag, "c_ADFfreq"};
    Property<std::int16_t> c_DMEfreq{bag, "c_DMEfreq"};
    Property<std::int16_t> c_Inst2NAVselect{bag, "c_Inst2NAVselect", 1};
    Property<std::int16_t> c_Inst3NAVselect{bag, "c_Inst3NAVselect", 1};
    Property<std::int16_t> c_NAVRadI2{bag, "c_NAVRadI2"};
    Property<std::int16_t> c_NAVRadI3{bag, "c_NAVRadI3"};
    Property<double> c_obsI2{bag, "c_obsI2"};
    Property<double> c_obsI3{bag, "c_obsI3"};
    Property<double> c_OBS1{bag, "c_OBS1"};
    Property<double> c_OBS2{bag, "c_OBS2"};
    Property<std::int16_t> c_NAVRadCenter{bag, "c_NAVRadCenter", on};
    Property<std::int16_t> c_NAVRadBorder{bag, "c_NAVRadBorder", off};
    Property<double> c_LocCrs1{bag, "c_LocCrs1"};
    Property<std::int16_t> c_inst2{bag, "c_inst2"};
    Property<std::int16_t> c_inst3{bag, "c_inst3"};
    Property<std::int16_t> c_Inst2_ADFCardselect{bag, "c_Inst2_ADFCardselect", 1};
    Property<std::int16_t> c_Inst3_ADFCardselect{bag, "c_Inst3_ADFCardselect", 1};
};

/// What stands on the panel: all that a sample records of it is among these.
struct PanelProperties : FlightProperties, ClockProperties, ReceiverProperties {
    explicit PanelProperties(PropertyBag& bag)
        : FlightProperties(bag), ClockProperties(bag), ReceiverProperties(bag) {}
};

/// The chart and what is drawn on it.
struct ChartProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::int16_t> c_MAPnorthUP{bag, "c_MAPnorthUP", 1};
    Property<std::int16_t> c_MAPscale{bag, "c_MAPscale", 250};
    Property<double> c_CenterTwips{bag, "c_CenterTwips", 3405};
    Property<std::int16_t> c_MAPCenterSelect{bag, "c_MAPCenterSelect", 1};
    Property<std::int16_t> c_NAV1NULLPositionX{bag, "c_NAV1NULLPositionX"};
    Property<std::int16_t> c_AirplaneEN{bag, "c_AirplaneEN", 1};
    Property<std::int16_t> c_TraceEN{bag, "c_TraceEN"};
    Property<std::int16_t> c_SpeedVectorEN{bag, "c_SpeedVectorEN"};
    Property<std::int16_t> c_TraceAheadEN{bag, "c_TraceAheadEN"};
    Property<std::int16_t> c_TraceBufferMax{bag, "c_TraceBufferMax", 1};
};

/// The wind. `c_WindSetEN`: 0 none, 1 draws one with the mouse, 2 by chance, 3 the last one again;
/// 4 and 5 tell that a replay has brought one, or one with a part that is zero.
struct WindProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::string> c_wind{bag, "c_wind", "0/0"};
    Property<std::int16_t> c_WindSetEN{bag, "c_WindSetEN"};
};

/// The replay. `c_RepeatValue` goes to a sample of a resting flight: below 1 it does nothing, above
/// 6000 it throws the subscript error. `c_ReplayInterpolation`: 0 shows the sample, 1 flies one
/// tick on from it, 2 and 3 one tick on from where the aircraft is. `c_replayInstLock`: 1
/// restores the instruments' settings and sets `c_replayActive`; else the present settings are
/// written over the sample's.
struct ReplayProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::int16_t> c_RepeatValue{bag, "c_RepeatValue"};
    Property<std::int16_t> c_HscrollRepeatValue{bag, "c_HscrollRepeatValue"};
    Property<std::int16_t> c_ReplayInterpolation{bag, "c_ReplayInterpolation"};
    Property<std::int16_t> c_replayActive{bag, "c_replayActive"};
    Property<std::int16_t> c_replayInstLock{bag, "c_replayInstLock"};
    Property<std::string> c_CurrentComment{bag, "c_CurrentComment"};
};

/// What is done to the session as a whole.
struct SessionProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    /// Any set starts an empty session: the stations framed as in `resetView`, the aircraft below
    /// them heading north, without wind, comments and reference. The stations stay.
    Property<std::int16_t> c_NewSession{bag, "c_NewSession"};
    /// Shows the practice panel in one of its states, 0 to 3, and goes back to 0.
    Property<std::int16_t> c_TrackDelta{bag, "c_TrackDelta"};
    /// 1 lets the mouse drag stations; samples lose the marks of their comments.
    Property<std::int16_t> c_mapedit{bag, "c_mapedit"};
};

/// Files. 1 asks the user for a name, 2 takes the present one, 3 is the temporary session in
/// `c_ScratchPath`; each goes back to 0. A save by the present name asks too unless the user
/// picked it. `c_doEncrypt` other than 0 writes enciphered files.
struct FileProperties : PropertyGroup {
    using PropertyGroup::PropertyGroup;
    Property<std::string> c_ScratchPath{bag, "c_ScratchPath"};
    Property<std::int16_t> c_saveChart{bag, "c_saveChart"};
    Property<std::int16_t> c_loadSession{bag, "c_loadSession"};
    Property<std::int16_t> c_saveSession{bag, "c_saveSession"};
    Property<std::int16_t> c_LoadOLDSession{bag, "c_LoadOLDSession"};
    Property<std::int16_t> c_doEncrypt{bag, "c_doEncrypt", off};
    Property<std::string> c_MainAppPath{bag, "c_MainAppPath"};
    Property<std::string> c_ChartFileName{bag, "c_ChartFileName"};
    Property<std::string> c_SessionFileName{bag, "c_SessionFileName"};
    Property<std::int16_t> c_loadChart{bag, "c_loadChart"};
};

/// The one bag of the simulation's properties, made before the groups that are listed in it.
struct SimulationBag {
    PropertyBag properties;
};

/// All properties of the simulation, as values alone: nothing happens when one is set.
struct SimulationProperties : SimulationBag,
                              PanelProperties,
                              ChartProperties,
                              WindProperties,
                              ReplayProperties,
                              SessionProperties,
                              FileProperties,
                              StationSlots {
    SimulationProperties()
        : PanelProperties(properties),
          ChartProperties(properties),
          WindProperties(properties),
          ReplayProperties(properties),
          SessionProperties(properties),
          FileProperties(properties),
          StationSlots(properties) {}
};

} // namespace tarnel
