#pragma once

#include "controls/form_controls.h"
#include "shell/exercise_menu.h"
#include "shell/strip_controls.h"

namespace tarnel {

/// The strip, the menus and the status bar.
struct TrainerControls {
    FormState state; ///< of all controls of the form

    CommandButton startButton{state, "Command6", Text::startSim, Text::startSimTip};
    CommandButton backButton{state, "Command7", Text::backToExercise, Text::backToExerciseTip};
    OptionGroup rateGroup;
    OptionButton rateReal{state, rateGroup, "Option5", Text::realTime, Text::realTimeTip};
    OptionButton rateHalf{state, rateGroup, "Option6", Text::rateHalf, Text::rateHalfTip};
    OptionButton rateDouble{state, rateGroup, "Option7", Text::rateDouble, Text::rateDoubleTip};
    OptionButton rateQuadruple{state, rateGroup, "Option8", Text::rateQuadruple,
                               Text::rateQuadrupleTip};
    StripPages pages{state};
    ChartPage chartPage{state};
    ReplayPage replayPage{state};
    WindPage windPage{state};
    StationPage stationPage{state};
    CommentPanel commentPanel{state};
    PracticePanel practicePanel{state};
    CommandButton radialCycleButton{state, "Command8", Text::cycleRadialLines,
                                    Text::cycleRadialLinesTip};

    FileMenu fileMenu{state};
    EditMenu editMenu{state};
    ExerciseMenu exerciseMenu{state};

    TextPanel sessionPanel{state, "StatusPanel1"};
    TextPanel windPanel{state, "StatusPanel4", {}, Text::panelWindTip};
    TextPanel hidePanel{state, "StatusPanel5", {}, Text::panelHideTip};
    TextPanel tracePanel{state, "StatusPanel6", {}, Text::panelTraceTip};
    TextPanel vectorsPanel{state, "StatusPanel7", {}, Text::panelVectorsTip};
    TextPanel modePanel{state, "StatusPanel8", {}, Text::panelModeTip};
    TextPanel flightTimePanel{state, "FlightTime", {}, Text::flightTime};
    TextPanel speedReadout{state, "Text1_16"};
    TextPanel turnReadout{state, "Text1_3"};
};

} // namespace tarnel
