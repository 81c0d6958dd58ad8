#include "engine/user_control_2.h"

namespace tarnel {

UserControl2::UserControl2(SimulationMessages& receiver) : messages(receiver) {
    connect();
    for (std::size_t i = 0; i < slotCount; ++i) {
        relabel(static_cast<Slot>(i));
        stationOnOff(static_cast<Slot>(i));
    }
    showScale();
    redrawChart();
    showAirplane();
}

/// What a set of each property does.
void UserControl2::connect() {
    connectChart();
    c_TimerEN.onSet([this] { switchClock(); });
    c_ResetTimer.onSet([this] { resetStopwatch(); });
    c_WindSetEN.onSet([this] { switchWind(); });
    c_RepeatValue.onSet([this] { goToSample(); });
    c_NewSession.onSet([this] { startSession(); });
    c_TrackDelta.onSet([this] { showPracticePanel(); });
    c_mapedit.onSet([this] { switchEditing(); });
    c_loadChart.onSet([this] { loadChart(); });
    c_saveChart.onSet([this] { saveChart(); });
    c_loadSession.onSet([this] { loadSession(); });
    c_saveSession.onSet([this] { saveSession(); });
    c_LoadOLDSession.onSet([this] { loadOldSession(); });
}

/// Those that change the picture alone.
void UserControl2::connectChart() {
    for (auto* property : {&Turn_Rate, &c_TAS, &c_SpeedVectorEN, &c_TraceAheadEN})
        property->onSet([this] { refresh(); });
    c_Altitude.onSet([this] { refresh(); });
    for (auto* property : {&c_NAV1freq, &c_NAV2freq, &c_Inst2NAVselect, &c_Inst3NAVselect})
        property->onSet([this] { redrawChart(); });
    for (auto* property : {&c_obsI2, &c_obsI3, &c_LocCrs1})
        property->onSet([this] { redrawChart(); });
    for (auto* property : {&c_NAVRadI2, &c_NAVRadI3, &c_NAVRadCenter, &c_NAVRadBorder})
        property->onSet([this] { switchRadials(); });
    c_MAPnorthUP.onSet([this] { switchView(); });
    c_MAPscale.onSet([this] { MapScale(); });
    c_CenterTwips.onSet([this] { resizeChart(); });
    c_AirplaneEN.onSet([this] { switchAirplane(); });
    c_TraceEN.onSet([this] { redrawTrace(); });
    for (std::size_t i = 0; i < slotCount; ++i) {
        const auto which = static_cast<Slot>(i);
        slot(i).name.onSet([this, which] { relabel(which); });
        slot(i).frequency.onSet([this, which] { relabel(which); });
        slot(i).enabled.onSet([this, which] { stationOnOff(which); });
        slot(i).dmeEnabled.onSet([this, which] { stationOnOff(which); });
    }
}

void UserControl2::relabel(Slot which) {
    const StationProperties& station = slot(which);
    ++stationChanges;
    picture.surface.set(inSlot(picture.symbols, which).name.caption,
                        station.name.get() + "\n" + station.frequency.get());
}

void UserControl2::stationOnOff(Slot which) {
    const bool stationOn = slot(which).enabled != off;
    const auto index = static_cast<std::size_t>(which);
    const bool dmeOn = hasDme(which) ? slot(which).dmeEnabled != off : stationOn;
    showStation(picture, index, stationOn, dmeOn);
    if (which == Slot::localizer)
        showLocalizer(picture, stationOn);
}

void UserControl2::refresh() {
    redrawOnly = true;
    SimStep();
}

void UserControl2::switchClock() {
    mouse.cancel();
    picture.trace.clear();
    if (c_TimerEN == 1)
        history.clear();
    if (c_TimerEN == 1 && resumeMode == ResumeMode::clear)
        freshRecording();
    else if (c_TimerEN == 1 && resumeMode == ResumeMode::cut)
        resumeFromReplay();
    redrawTrace();
}

void UserControl2::resetStopwatch() {
    if (c_ResetTimer != 0 || !stopped())
        return;
    clock.resetStopwatch();
    publishStopwatch();
    c_ResetTimer.publish(1);
}

} // namespace tarnel
