#include "engine/user_control_2.h"

namespace tarnel {

UserControl2::UserControl2(SimulationMessages& receiver) : messages(receiver) {
    for (std::size_t i = 0; i < slotCount; ++i) {
        relabel(static_cast<Slot>(i));
        stationOnOff(static_cast<Slot>(i));
    }
    showScale();
    redrawChart();
    showAirplane();
}

UserControl2::Slots UserControl2::makeSlots() {
    const auto make = [this](Slot which, const StationPropertyNames& names, const char* identifier,
                             const char* frequency) {
        return StationProperties(
            properties, names, identifier, frequency, [this, which] { relabel(which); },
            [this, which] { stationOnOff(which); });
    };
    return {make(Slot::vor1,
                 {"c_VOR1name", "c_VOR1Freq", "c_VOR1EN", "c_DME1EN", "c_NAV1Radial", "c_NAV1DME",
                  "c_NAV1DMEGS"},
                 "VOR1", "111.11"),
            make(Slot::vor2,
                 {"c_VOR2name", "c_VOR2Freq", "c_VOR2EN", "c_DME2EN", "c_NAV2Radial", "c_NAV2DME",
                  "c_NAV2DMEGS"},
                 "VOR2", "222.22"),
            make(Slot::ndb1,
                 {"c_NDB1name", "c_NDB1Freq", "c_NDB1EN", "", "c_NAV3Radial", "", "c_NAV3DMEGS"},
                 "NDB1", "111"),
            make(Slot::ndb2,
                 {"c_NDB2name", "c_NDB2Freq", "c_NDB2EN", "", "c_NAV4Radial", "", "c_NAV4DMEGS"},
                 "NDB2", "222"),
            make(Slot::localizer,
                 {"c_LOCname", "c_LOC1Freq", "c_LOC1EN", "c_DME5EN", "c_NAV5Radial", "c_NAV5DME",
                  "c_NAV5DMEGS"},
                 "LOC1", "333.33")};
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
