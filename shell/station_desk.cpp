#include "shell/station_desk.h"

namespace tarnel {

namespace {

int placeOf(const Station& station) {
    for (std::size_t i = 0; i < labelPlaces.size(); ++i)
        if (labelPlaces[i].offsetX == station.labelOffsetX &&
            labelPlaces[i].offsetY == station.labelOffsetY)
            return static_cast<int>(i);
    return 0;
}

} // namespace

StationDesk::StationDesk(UserControl2& simulation, StationPage& controls, BoxDesk& boxDesk,
                         ReplayDeck& deck, ChartDisplay& chartDisplay)
    : sim(simulation), page(controls), boxes(boxDesk), replay(deck), display(chartDisplay) {
    page.edit.onClick = [this] { setEditing(page.edit.value() == 1); };
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationPage::Switches switches = page.switches()[i];
        for (CheckBox* box : {switches.station, switches.dme})
            if (box)
                box->onClick = [this, i] { switchStation(i); };
    }
}

/// Editing happens at rest, with north at the top. It takes the marks of comments, if there are
/// any, and asks before.
void StationDesk::setEditing(bool editing) {
    if (editing) {
        replay.stop();
        if (sim.hasCommentMarks() && !boxes.confirm(Text::editChart, Text::editChartQuestion)) {
            page.edit.show(0);
            return;
        }
        display.setNorthUp(true);
    }
    sim.c_mapedit = editing ? 1 : 0;
    page.edit.show(editing ? 1 : 0); // the coupling before a question has taken it back
    changed();
}

void StationDesk::switchStation(std::size_t index) {
    const StationPage::Switches switches = page.switches()[index];
    sim.switchStation(static_cast<Slot>(index), switches.station->value() == 1,
                      switches.dme && switches.dme->value() == 1);
}

void StationDesk::follow() {
    if (const int editing = sim.c_mapedit == 1 ? 1 : 0; editing != page.edit.value()) {
        page.edit.show(editing);
        changed();
    }
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationPage::Switches switches = page.switches()[i];
        const StationProperties& station = sim.slot(static_cast<Slot>(i));
        switches.station->show(station.enabled != off ? 1 : 0);
        if (switches.dme)
            switches.dme->show(station.dmeEnabled != off ? 1 : 0);
    }
}

StationEdit StationDesk::toEdit(Slot slot) const {
    const StationProperties& station = sim.slot(slot);
    return {.slot = slot,
            .name = station.name,
            .frequency = station.frequency,
            .stationOn = station.enabled != off,
            .dmeOn = station.dmeEnabled != off,
            .labelPlace = placeOf(inSlot(sim.stations, slot))};
}

bool StationDesk::apply(const StationEdit& edit) {
    if (!fitsMask(edit.frequency, frequencyMask(edit.slot))) {
        boxes.show(
            Text::editorFormatTitle,
            std::string(
                boxes.texts[hasDme(edit.slot) ? Text::editorFormatVor : Text::editorFormatNdb]));
        return false;
    }
    Station& station = inSlot(sim.stations, edit.slot);
    const LabelPlace& place = labelPlaces[static_cast<std::size_t>(edit.labelPlace)];
    station.labelOffsetX = place.offsetX;
    station.labelOffsetY = place.offsetY;
    StationProperties& properties = sim.slot(edit.slot);
    properties.name = edit.name;
    properties.frequency = edit.frequency;
    sim.switchStation(edit.slot, edit.stationOn, edit.dmeOn);
    sim.moveStation(edit.slot, station.position);
    return true;
}

} // namespace tarnel
