#pragma once

#include "controls/form_controls.h"
#include "controls/scroll_bar.h"
#include "controls/text_field.h"

#include <array>
#include <cstddef>

namespace tarnel {

/// The strip's four pages, of which one is shown.
struct StripPages {
    explicit StripPages(FormState& form) : state(form) {}
    FormState& state;
    OptionGroup group;
    OptionButton chart{state, group, "PageChart", Text::pageChart};
    OptionButton replay{state, group, "PageReplay", Text::pageReplay};
    OptionButton wind{state, group, "PageWind", Text::pageWind};
    OptionButton stations{state, group, "PageStations", Text::pageStations};
};

/// What is drawn on the chart, and how.
struct ChartPage {
    explicit ChartPage(FormState& form) : state(form) {}
    FormState& state;
    CommandButton centre{state, "Command1", Text::centerAircraft, Text::centerAircraftTip};
    CommandButton reset{state, "Command2", Text::resetChart, Text::resetChartTip};
    CheckBox vectors{state, "Check3", Text::windVectors, Text::windVectorsTip};
    CheckBox trace{state, "Check4", Text::showTrack, Text::showTrackTip};
    CheckBox hide{state, "Check5", Text::hideAircraft, Text::hideSymbolTip};
};

struct ReplayPage {
    explicit ReplayPage(FormState& form) : state(form) {}
    FormState& state;
    OptionGroup group;
    OptionButton play{state, group, "Option11", Text::replayPlay, Text::startReplayTip};
    OptionButton stop{state, group, "Option12", Text::replayStop, Text::stopReplayTip};
    CheckBox loop{state, "Check11", Text::loopReplay, Text::loopReplayTip};
    CheckBox interpolate{state, "Check13", Text::interpolate, Text::interpolateTip};
    ScrollBar bar{state, "HScroll1", Text::replayPosition};
    TextPanel clock{state, "ReplayClock", {}, Text::replayPosition};
    CheckBox hide{state, "Check7", Text::hideAircraft, Text::hideAircraftTip};
    CheckBox lock{state, "Check6", Text::lockInstruments, Text::lockInstrumentsTip};
};

struct WindPage {
    explicit WindPage(FormState& form) : state(form) {}
    FormState& state;
    OptionGroup group;
    OptionButton none{state, group, "WindOff", Text::windOff, Text::windOffTip};
    OptionButton manual{state, group, "Option13", Text::windManual, Text::windOnTip};
    OptionButton random{state, group, "Option14", Text::windRandom, Text::windRandomTip};
    CommandButton draw{state, "Command3", Text::windDraw, Text::windManualTip};
    CheckBox show{state, "Check8", Text::showWind, Text::showWindTip};
    TextPanel readout{state, "Label1"};
};

/// Which stations send, by slot; NDBs have no DME.
struct StationPage {
    explicit StationPage(FormState& form) : state(form) {}
    FormState& state;
    CheckBox vor1{state, "Vor1On", Text::editorVorOn, Text::stationSwitchTip};
    CheckBox vor2{state, "Vor2On", Text::editorVorOn, Text::stationSwitchTip};
    CheckBox ndb1{state, "Ndb1On", Text::editorNdbOn, Text::stationSwitchTip};
    CheckBox ndb2{state, "Ndb2On", Text::editorNdbOn, Text::stationSwitchTip};
    CheckBox localizer{state, "LocOn", Text::editorLocOn, Text::stationSwitchTip};
    CheckBox dme1{state, "Dme1On", Text::editorDmeOn, Text::stationSwitchTip};
    CheckBox dme2{state, "Dme2On", Text::editorDmeOn, Text::stationSwitchTip};
    CheckBox dme5{state, "Dme5On", Text::editorDmeOn, Text::stationSwitchTip};
    CheckBox edit{state, "Check9", Text::editChart, Text::editChartTip};

    /// A slot's switches; null where it has no DME.
    struct Switches {
        CheckBox* station;
        CheckBox* dme;
    };
    [[nodiscard]] std::array<Switches, 5> switches() {
        return {{{&vor1, &dme1},
                 {&vor2, &dme2},
                 {&ndb1, nullptr},
                 {&ndb2, nullptr},
                 {&localizer, &dme5}}};
    }
};

/// The comment of the present sample, and the strip on which an author writes comments.
struct CommentPanel {
    explicit CommentPanel(FormState& form) : state(form) {}
    FormState& state;
    TextPanel comment{state, "Text2"}; ///< visible with its frame, `Frame3`
    TextPanel mark{state, "Text3"};    ///< blinks at rest
    CheckBox write{state, "WriteComments", Text::writeComments, Text::writeCommentsTip};
    TextField text{state, "Text8", Text::commentText};
    TextPanel number{state, "Label13", Text::commentNumber};
    CommandButton startStop{state, "CommentStart", Text::commentStart, Text::commentMarkTip};
    CommandButton deleteOne{state, "Command12", Text::commentDelete, Text::commentDeleteTip};
    CommandButton deleteAll{state, "Command13", Text::commentDeleteAll, Text::commentDeleteAllTip};
    CommandButton previous{state, "Command14", Text::commentPrevious, Text::commentPrevious};
    CommandButton next{state, "Command15", Text::commentNext, Text::commentNext};
};

/// `Frame2` of the simulation: keeps a copy of a practice flight and calls it back.
struct PracticePanel {
    explicit PracticePanel(FormState& form) : state(form) {}
    FormState& state;
    TextPanel frame{state, "Frame2", Text::practiceFlight};
    OptionGroup group;
    OptionButton keep{state, group, "PracticeKeep", Text::practiceKeep, Text::practiceKeepTip};
    OptionButton recall{state, group, "PracticeRecall", Text::practiceRecall,
                        Text::practiceRecallTip};
    /// After a flight of one's own, at a question too.
    CommandButton debrief{state, "Debrief", Text::debrief, Text::debriefTip};
};

/// The items of the file menu. They rest while the aircraft flies, and the export as long as there
/// is no flight.
struct FileMenu {
    explicit FileMenu(FormState& form) : state(form) {}
    FormState& state;
    CommandButton newSession{state, "mnuNewSession", Text::newSession};
    CommandButton loadSession{state, "mnuLoadSession", Text::loadSession};
    CommandButton loadOldSession{state, "mnuLoadOLDSession", Text::loadOldSession};
    CommandButton recent{state, "mnuRecent", Text::recentFiles}; ///< the sub menu
    CommandButton saveSession{state, "mnuSaveSession", Text::saveSession};
    CommandButton saveSessionAs{state, "mnuSaveSessionAs", Text::saveSessionAs};
    CommandButton newChart{state, "mnuNewChart", Text::newChart};
    CommandButton loadChart{state, "mnuloadchart", Text::loadChart};
    CommandButton saveChart{state, "mnuSaveChart", Text::saveChart};
    CommandButton saveChartAs{state, "mnuSaveChartAs", Text::saveChartAs};
    CommandButton exportFlight{state, "mnuExportFlight", Text::exportTrack};
    CommandButton flyAlong{state, "mnuFlyAlong", Text::flyAlong};
    CheckBox encipher{state, "fencrypt", Text::encipherFiles};

    [[nodiscard]] std::array<CommandButton*, 11> items() {
        return {&newSession,  &loadSession,   &loadOldSession, &recent,
                &saveSession, &saveSessionAs, &newChart,       &loadChart,
                &saveChart,   &saveChartAs,   &flyAlong};
    }
};

/// Takes back, and does again, what the hand did on the chart at rest.
struct EditMenu {
    explicit EditMenu(FormState& form) : state(form) {}
    FormState& state;
    CommandButton undo{state, "mnuUndo", Text::undo};
    CommandButton redo{state, "mnuRedo", Text::redo};
};

} // namespace tarnel
