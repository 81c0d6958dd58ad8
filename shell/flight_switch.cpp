#include "shell/flight_switch.h"

#include <algorithm>
#include <array>

namespace tarnel {

namespace {

/// Miles from any DME at which a flight ends.

} // namespace

FlightSwitch::FlightSwitch(UserControl2& simulation, TrainerControls& controls, ReplayDeck& deck)
    : sim(simulation), strip(controls), replay(deck) {
    strip.startButton.onClick = [this] { flying ? stop() : start(); };
    strip.rateReal.onClick = [this] { setRate(333); };
    strip.rateHalf.onClick = [this] { setRate(666); };
    strip.rateDouble.onClick = [this] { setRate(166); };
    strip.rateQuadruple.onClick = [this] { setRate(83); };
}

void FlightSwitch::start() {
    replay.stop();
    flying = true;
    onStart();
    strip.replayPage.lock.set(0);
    strip.stationPage.edit.set(0);
    restOrFly();
    sim.c_TimerEN = 1;
    show(Text::stopSim, Text::stopSimTip);
}

void FlightSwitch::stop() {
    if (!flying)
        return;
    flying = false;
    restOrFly();
    sim.c_TimerEN = 0;
    replay.standAtNewest();
    show(Text::startSim, Text::startSimTip);
    onStop();
}

void FlightSwitch::show(Text caption, Text tip) {
    strip.startButton.setCaption(caption);
    strip.startButton.setTip(tip);
}

void FlightSwitch::restOrFly() {
    strip.replayPage.bar.setVisible(!flying);
    if (flying)
        strip.commentPanel.mark.setVisible(false);
    strip.pages.replay.choose();
    changed();
}

bool FlightSwitch::leftPractiseArea() const {
    constexpr std::array dmes{Slot::vor1, Slot::vor2, Slot::localizer};
    return flying && std::ranges::any_of(dmes, [this](Slot slot) {
               return sim.slot(slot).dme > practiseAreaLimit;
           });
}

} // namespace tarnel
