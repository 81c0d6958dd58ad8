#include "shell/form_1.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace tarnel {

void Form1::connectChartPage() {
    chartPage.centre.onClick = [this] { UserControl11.centreOnAircraft(); };
    chartPage.reset.onClick = [this] { UserControl11.resetView(); };
    chartPage.trace.onClick = [this] { applyTrace(); };
    chartPage.vectors.onClick = [this] { setVectorMode(chartPage.vectors.value()); };
    chartPage.hide.onClick = [this] { setHidden(chartPage.hide.value() == 1); };
    stationPage.edit.onClick = [this] { setEditing(stationPage.edit.value() == 1); };
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationPage::Switches switches = stationPage.switches()[i];
        for (CheckBox* box : {switches.station, switches.dme})
            if (box)
                box->onClick = [this, i] { switchStation(i); };
    }
}

void Form1::stepScale(int steps) {
    const std::span offered(MapView::offeredScales);
    std::int16_t scale = UserControl11.c_MAPscale;
    for (; steps > 0 && scale < offered.back(); --steps)
        scale = *std::upper_bound(offered.begin(), offered.end(), scale);
    for (; steps < 0 && scale > offered.front(); ++steps)
        scale = *std::prev(std::lower_bound(offered.begin(), offered.end(), scale));
    setScale(scale);
}

void Form1::setScale(std::int16_t twipsPerMile) {
    UserControl11.c_MAPscale.setIfChanged(twipsPerMile);
}

void Form1::setNorthUp(bool northUp) {
    if (!northUp && !mayTurnHeadingUp())
        return;
    UserControl11.c_MAPnorthUP.setIfChanged(northUp ? 1 : 0);
}

/// Editing happens at rest, with north at the top. It takes the marks of comments, if there are
/// any, and asks before.
void Form1::setEditing(bool editing) {
    if (editing) {
        StopReplay();
        if (UserControl11.hasCommentMarks() &&
            !confirm(text(Text::editChart), text(Text::editChartQuestion))) {
            stationPage.edit.show(0);
            return;
        }
        setNorthUp(true);
    }
    UserControl11.c_mapedit = editing ? 1 : 0;
    enableControls();
}

void Form1::switchStation(std::size_t index) {
    const StationPage::Switches switches = stationPage.switches()[index];
    UserControl11.switchStation(static_cast<Slot>(index), switches.station->value() == 1,
                                switches.dme && switches.dme->value() == 1);
}

/// Brings the switches to what a chart or a session has set; a session ends the editing.
void Form1::followStations() {
    if (const int editing = UserControl11.c_mapedit == 1 ? 1 : 0;
        editing != stationPage.edit.value()) {
        stationPage.edit.show(editing);
        enableControls();
    }
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationPage::Switches switches = stationPage.switches()[i];
        const StationProperties& station = UserControl11.slot(static_cast<Slot>(i));
        switches.station->show(station.enabled != off ? 1 : 0);
        if (switches.dme)
            switches.dme->show(station.dmeEnabled != off ? 1 : 0);
    }
}

} // namespace tarnel
