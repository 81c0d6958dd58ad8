#include "engine/user_control_2.h"

#include <utility>

namespace tarnel {

UserControl2::UserControl2(SimulationMessages& messages)
    : marking({.clocks = *this, .chart = *this, .replay = *this, .tape = tape}),
      scene({.panel = *this,
             .chart = *this,
             .replay = *this,
             .stationSlots = *this,
             .wind = windSetting,
             .tape = tape}),
      sheet({.chart = *this, .receivers = *this, .scene = scene}),
      recorder({.messages = messages,
                .panel = *this,
                .chart = *this,
                .scene = scene,
                .wind = windSetting,
                .tape = tape,
                .comments = marking,
                .clocks = clocks,
                .session = sessionOnDisk}),
      memory({.panel = *this,
              .chart = *this,
              .replay = *this,
              .tape = tape,
              .recorder = recorder,
              .comments = marking,
              .clocks = clocks,
              .session = sessionOnDisk}),
      hand({.panel = *this,
            .chart = *this,
            .replay = *this,
            .scene = scene,
            .wind = windSetting,
            .tape = tape,
            .recorder = recorder,
            .memory = memory,
            .placedByHand = placedByHand,
            .headingDrawn = headingDrawn}),
      replay({.panel = *this,
              .chart = *this,
              .replay = *this,
              .scene = scene,
              .wind = windSetting,
              .tape = tape,
              .recorder = recorder,
              .comments = marking,
              .clocks = clocks,
              .session = sessionOnDisk,
              .history = hand.history}),
      picker({.messages = messages, .files = *this, .chance = chance}),
      gate({.messages = messages,
            .clocks = *this,
            .tape = tape,
            .handLetsGo = [this] { mouse.cancel(); }}),
      charts({.messages = messages,
              .receivers = *this,
              .chart = *this,
              .replay = *this,
              .files = *this,
              .stationSlots = *this,
              .scene = scene,
              .recorder = recorder,
              .comments = marking,
              .clocks = clocks,
              .session = sessionOnDisk,
              .hand = hand,
              .picker = picker,
              .gate = gate}),
      sessions({.messages = messages,
                .clocks = *this,
                .flight = *this,
                .chart = *this,
                .replayProperties = *this,
                .editing = *this,
                .files = *this,
                .scene = scene,
                .wind = windSetting,
                .tape = tape,
                .recorder = recorder,
                .comments = marking,
                .session = sessionOnDisk,
                .history = hand.history,
                .replay = replay,
                .charts = charts,
                .picker = picker,
                .gate = gate}),
      newSession({.flight = *this,
                  .chart = *this,
                  .replay = *this,
                  .scene = scene,
                  .sheet = sheet,
                  .wind = windSetting,
                  .tape = tape,
                  .recorder = recorder,
                  .comments = marking,
                  .clocks = clocks,
                  .session = sessionOnDisk,
                  .history = hand.history}),
      mouse({.panel = *this, .editing = *this, .scene = scene, .wind = windSetting, .hand = hand}) {
    connect();
    for (std::size_t i = 0; i < slotCount; ++i) {
        scene.relabelStation(static_cast<Slot>(i));
        scene.showStationSymbol(static_cast<Slot>(i));
    }
    scene.showScale();
    scene.redrawChart();
    scene.showAirplane();
}

/// What a set of each property does.
void UserControl2::connect() {
    connectChart();
    connectFiles();
    c_TimerEN.onSet([this] { switchClock(); });
    c_ResetTimer.onSet([this] { clocks.resetStopwatchAtRest(); });
    c_WindSetEN.onSet([this] { switchWind(); });
    c_RepeatValue.onSet([this] { replay.goToSample(); });
    c_NewSession.onSet([this] { startSession(); });
    c_TrackDelta.onSet([this] { showPracticePanel(); });
    c_mapedit.onSet([this] { switchEditing(); });
}

/// Those that change the picture alone.
void UserControl2::connectChart() {
    for (auto* property : {&Turn_Rate, &c_TAS, &c_SpeedVectorEN, &c_TraceAheadEN})
        property->onSet([this] { scene.refresh(); });
    c_Altitude.onSet([this] { scene.measure(); }); // twice a tick, and nothing drawn depends on it
    for (auto* property : {&c_NAV1freq, &c_NAV2freq, &c_Inst2NAVselect, &c_Inst3NAVselect})
        property->onSet([this] { scene.redrawChart(); });
    for (auto* property : {&c_obsI2, &c_obsI3, &c_LocCrs1})
        property->onSet([this] { scene.redrawChart(); });
    for (auto* property : {&c_NAVRadI2, &c_NAVRadI3, &c_NAVRadCenter, &c_NAVRadBorder})
        property->onSet([this] { scene.switchRadials(); });
    c_MAPnorthUP.onSet([this] {
        mouse.cancel();
        sheet.switchView();
    });
    c_MAPscale.onSet([this] { sheet.MapScale(); });
    c_CenterTwips.onSet([this] { sheet.resize(); });
    c_AirplaneEN.onSet([this] { scene.switchAirplane(); });
    c_TraceEN.onSet([this] { scene.redrawTrace(); });
    for (std::size_t i = 0; i < slotCount; ++i) {
        const auto which = static_cast<Slot>(i);
        slot(which).name.onSet([this, which] { scene.relabelStation(which); });
        slot(which).frequency.onSet([this, which] { scene.relabelStation(which); });
        slot(which).enabled.onSet([this, which] { scene.showStationSymbol(which); });
        slot(which).dmeEnabled.onSet([this, which] { scene.showStationSymbol(which); });
    }
}

void UserControl2::connectFiles() {
    c_loadChart.onSet([this] { charts.load(); });
    c_saveChart.onSet([this] { charts.save(); });
    c_loadSession.onSet([this] { sessions.load(); });
    c_saveSession.onSet([this] { sessions.save(); });
    c_LoadOLDSession.onSet([this] { sessions.loadOld(); });
}

void UserControl2::startSession() {
    if (!stopped())
        return;
    mouse.cancel();
    newSession.start();
}

void UserControl2::switchEditing() {
    mouse.cancel();
    if (c_mapedit == 1)
        marking.unmarkAll();
}

/// A wind to be drawn begins with the mouse's next press.
void UserControl2::switchWind() {
    if (windSetting.asked() == WindRequest::drawn)
        mouse.pickWindTool();
    else if (mouse.windTool())
        mouse.cancel();
    hand.switchWind();
}

void UserControl2::showPracticePanel() {
    if (practicePanelSet && c_TrackDelta >= 0 && c_TrackDelta <= 3)
        practicePanelSet(c_TrackDelta);
    c_TrackDelta.publish(0);
}

void UserControl2::switchStation(Slot which, bool stationOn, bool dmeOn) {
    StationProperties& station = slot(which);
    station.dmeEnabled = dmeOn ? on : off;
    station.enabled = stationOn ? on : off;
    if (!stationOn && !dmeOn)
        inSlot(stations, which).buttonDown = false;
    scene.refresh();
}

void UserControl2::tellChanceWind(bool told) {
    if (windSetting.tellChanceWind(told))
        scene.showWindLabel();
}

bool UserControl2::undo() {
    if (mouse.takeBack())
        return true;
    mouse.cancel();
    return hand.undo();
}

bool UserControl2::redo() {
    mouse.cancel();
    return hand.redo();
}

} // namespace tarnel
