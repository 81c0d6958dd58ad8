#include "panel/panel_coupling.h"

#include "core/angle.h"
#include "core/rounding.h"
#include "core/sailing.h"
#include "core/station_geometry.h"
#include "panel/needle_sources.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

bool isInstrument(std::int16_t type) {
    return type >= adf && type <= dg;
}

// What the hand has set on a control goes into the property.

void take(setting::Course, InstrumentPosition& position, Property<double>& /*course*/) {
    position.followKnob(); // its feed writes the course, which depends on the chart's view
}
void take(setting::Kind, InstrumentPosition&, Property<std::int16_t>&) {}
void take(setting::Receiver, InstrumentPosition& position, Property<std::int16_t>& receiver) {
    receiver.setIfChanged(position.navSel);
}
void take(setting::AdfCard, InstrumentPosition& position, Property<std::int16_t>& card) {
    card.setIfChanged(position.instrument.c_ADFCardselect);
}
template <class Place>
void take(setting::Frequency, Place& selected, Property<std::int16_t>& frequency) {
    frequency.setIfChanged(toInt16(selected.get()));
}
void take(setting::Heading, APControlFace& autopilot, Property<std::int16_t>& heading) {
    heading.setIfChanged(toInt16(autopilot.c_HDG));
}
void take(setting::Demand, Property<double>& demanded, Property<std::int16_t>& value) {
    constexpr double highestRecorded = 32767;
    value.setIfChanged(toInt16(std::min(demanded.get(), highestRecorded)));
}
void take(setting::Bug, InstrumentPosition& position, Property<std::int16_t>& bug) {
    bug.setIfChanged(position.instrument.c_HDGbug);
}

// What a replay has restored in the property goes onto the control.

void give(setting::Course, InstrumentPosition& position, double course) {
    // A course recorded under a turned chart is a sum and may lie above 360.
    position.setDial(intoCircle(course));
}
void give(setting::Receiver, InstrumentPosition& position, std::int16_t receiver) {
    position.navSel = receiver;
    position.instrument.c_NAVselect.setIfChanged(receiver);
}
void give(setting::AdfCard, InstrumentPosition& position, std::int16_t card) {
    position.instrument.c_ADFCardselect.setIfChanged(card);
}
template <class Place>
void give(setting::Frequency, Place& selected, std::int16_t frequency) {
    selected = frequency;
}
void give(setting::Heading, APControlFace& autopilot, std::int16_t heading) {
    autopilot.c_HDG = intoCircle(heading);
    autopilot.c_HDGChange = 0;
}
void give(setting::Demand, Property<double>& demanded, std::int16_t value) {
    demanded = static_cast<double>(value);
}

/// The kinds go first, as they say which of a position's dials a course belongs to; the bug belongs
/// to several controls.
template <class Control>
void give(setting::Kind, Control&, std::int16_t) {}
template <class Control>
void give(setting::Bug, Control&, std::int16_t) {}

template <class OtherKind, class Control, class Value>
void giveKind(OtherKind, Control&, Value) {}
void giveKind(setting::Kind, InstrumentPosition& position, std::int16_t type) {
    if (!isInstrument(type))
        return;
    position.setType(type);
    position.instrument.Display.setIfChanged(type);
}

} // namespace

/// Gives a frequency of the chart to every face that lists it; each face then latches its selection
/// anew.
void PanelCoupling::followFrequencies() {
    const auto follow = [this](Slot slot, auto frequencyOf, auto&... faces) {
        const std::string& frequency = sim.slot(slot).frequency.get();
        const auto write = [&](auto& face) {
            frequencyOf(face) = frequency;
            face.c_SetFreq = face.c_SetFreq.get();
        };
        const auto differs = [&](auto& first, auto&...) {
            return frequencyOf(first).get() != frequency;
        };
        if (differs(faces...))
            (write(faces), ...);
    };
    const auto first = [](auto& face) -> auto& {
        return face.c_Freq1;
    };
    const auto second = [](auto& face) -> auto& {
        return face.c_Freq2;
    };
    const auto third = [](auto& face) -> auto& {
        return face.c_Freq3;
    };
    follow(Slot::vor1, first, panel.NAVControlFace1, panel.NAVControlFace2, panel.DMEControlFace1);
    follow(Slot::vor2, second, panel.NAVControlFace1, panel.NAVControlFace2, panel.DMEControlFace1);
    follow(Slot::localizer, third, panel.NAVControlFace1, panel.NAVControlFace2,
           panel.DMEControlFace1);
    follow(Slot::ndb1, first, panel.ADFControlFace1);
    follow(Slot::ndb2, second, panel.ADFControlFace1);
}

/// In a locked replay the DME stays on what was recorded, wherever its selector stands.
void PanelCoupling::copyReceiverSelections() {
    if (sim.inReplay() && sim.c_replayInstLock == 1)
        return;
    panel.DMEControlFace1.c_NAV1f = toInt16(panel.NAVControlFace1.c_SetFreq.get());
    panel.DMEControlFace1.c_NAV2f = toInt16(panel.NAVControlFace2.c_SetFreq.get());
}

/// While a replay rests on a sample, speed and turn are the sample's.
void PanelCoupling::coupleAutopilot() {
    const bool live = !sim.inReplay();
    if (live)
        sim.Turn_Rate.setIfChanged(panel.APControlFace1.c_APTurnrate);
    panel.APControlFace1.c_ActualHDG = sim.c_HDG.get();
    if (live)
        sim.c_TAS.setIfChanged(toInt16(panel.APControlFace1.c_TAS));
    sim.c_Altitude.setIfChanged(panel.APControlFace1.c_ALT);
}

/// Keeps the bug equal on the autopilot, both instruments, the floating gyro and the simulation.
void PanelCoupling::coupleHeadingBug() {
    if (panel.APControlFace1.c_HDGChange == 1) {
        writeHeadingBug(toInt16(panel.APControlFace1.c_HDG));
        panel.APControlFace1.c_HDGChange = 0;
    }
    for (UserControl_1* source :
         {&panel.inst3.instrument, &panel.inst2.instrument, &panel.UserControl_DG}) {
        if (source->c_HDGbugChange != 1)
            continue;
        setHeadingBug(source->c_HDGbug);
        source->c_HDGbugChange = 0;
    }
}

void PanelCoupling::writeHeadingBug(std::int16_t heading) {
    for (UserControl_1* instrument :
         {&panel.inst2.instrument, &panel.inst3.instrument, &panel.UserControl_DG})
        instrument->c_HDGbug.setIfChanged(heading);
    sim.c_HDGbug.setIfChanged(heading);
}

void PanelCoupling::setHeadingBug(std::int16_t heading) {
    panel.APControlFace1.c_HDG = static_cast<double>(heading);
    writeHeadingBug(heading);
}

/// The distance of the selected DME, as far as its digits go. The second one shows the ground speed
/// of the localizer's.
void PanelCoupling::showDme() {
    const auto source = dmeSource(panel.DMEControlFace1, sim);
    if (!source)
        return;
    double tenths = 0;
    std::int16_t knots = 0;
    if (source->received) {
        const Slot speed = source->slot == Slot::vor1 ? Slot::vor1 : Slot::localizer;
        tenths = std::floor(sim.slot(source->slot).dme * 10);
        knots = sim.slot(speed).dmeGroundSpeed;
    }
    if (tenths > DMEControlFace::longest)
        tenths = DMEControlFace::noSignal;
    panel.DMEControlFace1.c_DMEnm.setIfChanged(toInt16(tenths));
    panel.DMEControlFace1.c_DMEkt.setIfChanged(knots);
}

void PanelCoupling::pinAltitude() {
    sim.c_Altitude.setIfChanged(fixedAltitude);
}

void PanelCoupling::coupleSettings() {
    if (sim.c_replayActive == 1)
        push();
    else
        pull();
}

void PanelCoupling::pull() {
#define SETTING(name, type, rule, kind, property, control)                                         \
    take(setting::kind(), panel.control, sim.property);
#include "core/sample_rows.def"
}

void PanelCoupling::push() {
    sim.c_replayActive = 0;
    writeHeadingBug(toInt16(intoCircle(sim.c_HDGbug)));
#define SETTING(name, type, rule, kind, property, control)                                         \
    giveKind(setting::kind(), panel.control, sim.property.get());
#include "core/sample_rows.def"
#define SETTING(name, type, rule, kind, property, control)                                         \
    give(setting::kind(), panel.control, sim.property.get());
#include "core/sample_rows.def"
    showDme(); // of the frequency that stands there now
}

void PanelCoupling::turnFloatingGyro() {
    panel.UserControl_DG.angle = toInt32(360 - sim.c_HDG);
    panel.UserControl_DG.c_HDGbug.setIfChanged(sim.c_HDGbug);
}

/// The flags read the other way round: 1 lets the user act.
void PanelCoupling::setLocked(bool locked) {
    const std::int16_t free = locked ? 0 : 1;
    sim.c_replayInstLock = locked ? 1 : 0;
    for (UserControl_1* instrument : {&panel.inst2.instrument, &panel.inst3.instrument})
        instrument->c_DisableKnobs = free;
    panel.NAVControlFace1.c_LockSettings = free;
    panel.NAVControlFace2.c_LockSettings = free;
    panel.ADFControlFace1.c_LockSettings = free;
    panel.DMEControlFace1.c_LockSettings = free;
}

void PanelCoupling::switchFaces(bool active) {
    const std::int16_t value = active ? 1 : 0;
    panel.APControlFace1.c_OnOff = value;
    panel.NAVControlFace1.c_OnOff = value;
    panel.NAVControlFace2.c_OnOff = value;
    panel.DMEControlFace1.c_OnOff = value;
    panel.ADFControlFace1.c_OnOff = value;
    panel.stopwatchStartButton.setEnabled(active);
    panel.stopwatchResetButton.setEnabled(active);
}

} // namespace tarnel
