#include "shell/practice_desk.h"

#include "core/number_text.h"
#include "shell/shipped_session.h"
#include "shell/text_format.h"

namespace tarnel {

PracticeDesk::PracticeDesk(UserControl2& simulation, TrainerControls& controls,
                           FlightKeeper& flightKeeper, const StringTable& table)
    : sim(simulation), strip(controls), keeper(flightKeeper), texts(table) {
    ExerciseMenu& menu = strip.exerciseMenu;
    for (std::size_t i = 0; i < ExerciseMenu::practiceCount; ++i) {
        const std::string file = zeroPadded(static_cast<std::int64_t>(i + 1), 2) + ".ts";
        menu.adfPractice[i]->onClick = [this, file] { open("adf practise " + file, true); };
        menu.vorPractice[i]->onClick = [this, file] { open("vor practise " + file, true); };
    }
    menu.introduction1.onClick = [this] { open("introduction 1.ts", false); };
    menu.introduction2.onClick = [this] { open("introduction 2.ts", false); };
    strip.practicePanel.keep.onClick = [this] { keep(); };
    strip.practicePanel.recall.onClick = [this] { recall(); };
}

void PracticeDesk::open(const std::string& name, bool practised) {
    openFile(shippedSession(sim.c_MainAppPath, name, texts, practised), practised);
}

bool PracticeDesk::openFile(const std::string& path, bool practised) {
    if (!load(path))
        return false;
    strip.chartPage.trace.set(1);
    practising = practised;
    sim.c_TrackDelta = practising ? 1 : 0;
    return true;
}

bool PracticeDesk::load(const std::string& path) {
    const bool read = sim.loadByName(path);
    if (read) {
        practisedPath = path;
        example = sim.recording.samplesTo(sim.c_TraceBufferMax);
        task.take(sim.comments.shownText(sim.recording.at(1).traceComment));
    }
    onLoad(read);
    return read;
}

void PracticeDesk::leave() {
    practising = false;
    sim.c_TrackDelta = 0;
    onLeave();
}

std::string PracticeDesk::beside(const std::string& comment, bool untouched) {
    if (!practising)
        return comment;
    return task.beside(comment, untouched
                                    ? filledIn(texts[Text::practiceStart],
                                               {texts[Text::startSim], texts[Text::replayPlay]})
                                    : std::string());
}

/// Keeps the flight aside and shows the session that it practises.
void PracticeDesk::keep() {
    if (busy())
        return;
    const bool practised = practising;
    if (!sim.keepTemporary() || !load(practisedPath)) {
        strip.practicePanel.recall.show();
        return;
    }
    practising = practised;
    sim.c_TrackDelta = 2;
}

void PracticeDesk::recall() {
    if (busy())
        return;
    const bool practised = practising;
    if (!sim.recallTemporary()) {
        strip.practicePanel.keep.show();
        return;
    }
    keeper.takeAsKept();
    practising = practised;
    sim.c_TrackDelta = 3;
}

void PracticeDesk::showPanel(std::int16_t state) {
    PracticePanel& panel = strip.practicePanel;
    own = state == 3;
    panel.frame.setVisible(state != 0);
    panel.recall.setEnabled(state >= 2);
    if (state == 1 || state == 2)
        panel.keep.show();
    else if (state == 3)
        panel.recall.show();
}

} // namespace tarnel
