#pragma once

#include "controls/form_controls.h"

namespace tarnel {

/// The controls of the debrief, and the item that opens it for any flight.
struct DebriefControls {
    explicit DebriefControls(FormState& form) : state(form) {}
    FormState& state;
    CommandButton item{state, "mnuDebrief", Text::debriefItem};
    CommandButton flyAgain{state, "DebriefFlyAgain", Text::debriefFlyAgain,
                           Text::debriefFlyAgainTip};
    CheckBox compare{state, "DebriefCompare", Text::debriefCompare, Text::debriefCompareTip};
    SelectionList limits{state,
                         "DebriefLimits",
                         {Text::debriefWide, Text::debriefStandard, Text::debriefCheckRide},
                         Text::debriefLimitsTip};
    CommandButton task{state, "DebriefTask", Text::debriefTask, Text::debriefTaskTip};
    CommandButton judge{state, "DebriefJudge", Text::debriefJudge};
    CommandButton close{state, "DebriefClose", Text::debriefClose};
    CommandButton previous{state, "DebriefPrevious", Text::debriefPrevious, Text::debriefPrevious};
    CommandButton next{state, "DebriefNext", Text::debriefNext, Text::debriefNext};
    CommandButton exportPage{state, "DebriefExportPage", Text::debriefExportPage};
    CommandButton exportPicture{state, "DebriefExportPicture", Text::debriefExportPicture};
    CommandButton exportValues{state, "DebriefExportValues", Text::debriefExportValues};
};

} // namespace tarnel
