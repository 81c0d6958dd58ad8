#include "shell/usable_controls.h"

#include <initializer_list>

namespace tarnel {

namespace {

void enable(std::initializer_list<FormControl*> controls, bool enabled) {
    for (FormControl* control : controls)
        control->setEnabled(enabled);
}

} // namespace

void UsableControls::update() {
    updateReplay();
    updateChart();
    updateInstruments();
    updateMenus();
    strip.practicePanel.frame.setEnabled(!flight.flies());
    strip.startButton.setEnabled(exercise.mayFly() && !replay.runs() && !debrief.isOpen());
}

/// Going to a sample would put back the station that an author moves.
void UsableControls::updateReplay() {
    ReplayPage& page = strip.replayPage;
    enable({&page.play, &page.stop, &page.loop, &page.lock, &page.bar},
           !flight.flies() && !exercise.questionOpen() && sim.c_mapedit != 1);
}

void UsableControls::updateChart() {
    const bool open = exercise.questionOpen();
    ChartPage& page = strip.chartPage;
    enable(
        {&strip.replayPage.hide, &page.hide, &page.trace, &page.vectors, &page.centre, &page.reset},
        !open);
    sim.mouse.setLocked(open || debrief.isOpen());
    sim.setPlaceSecret(open);
}

void UsableControls::updateInstruments() {
    const bool fixed = exercise.questionOpen() && !exercise.studentFlies();
    for (const PositionLinks* links : {&positions.links2(), &positions.links3()})
        enable({&links->typeList, &links->channelButton, &links->overlayBox, &links->radialBox},
               !fixed);
}

void UsableControls::updateMenus() {
    strip.stationPage.edit.setEnabled(free() && !debrief.isOpen());
    bringBack.setEnabled(free());
    for (CommandButton* item : strip.fileMenu.items())
        item->setEnabled(free());
    for (CommandButton* item : strip.exerciseMenu.items())
        item->setEnabled(free());
    strip.exerciseMenu.progress.setEnabled(!exercise.runs());
}

void UsableControls::followHistory() {
    strip.fileMenu.exportFlight.setEnabled(free() && sim.hasFlight());
    const bool may = free() && !debrief.isOpen();
    strip.editMenu.undo.setEnabled(may && sim.history.undoable());
    strip.editMenu.redo.setEnabled(may && sim.history.redoable());
}

} // namespace tarnel
