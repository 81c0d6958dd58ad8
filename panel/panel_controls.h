#pragma once

#include "controls/form_controls.h"
#include "instruments/ap_control_face.h"
#include "instruments/dme_control_face.h"
#include "instruments/radio_face.h"
#include "instruments/stopwatch_face.h"
#include "instruments/user_control_1.h"
#include "panel/instrument_position.h"

#include <vector>

namespace tarnel {

/// The instrument panel: dials, faces, and what stands around them.
struct PanelControls {
  private:
    FormState& panelState;

  public:
    explicit PanelControls(FormState& form) : panelState(form) {}

    InstrumentPosition inst1; ///< the reserve instrument `UserControl12`
    InstrumentPosition inst2; ///< `UserControl13(0)`
    InstrumentPosition inst3; ///< `UserControl13(1)`
    UserControl_1 UserControl_DG;
    NAVControlFace NAVControlFace1;
    NAVControlFace NAVControlFace2;
    ADFControlFace ADFControlFace1;
    ADFControlFace ADFControlFace2;
    DMEControlFace DMEControlFace1;
    DMEControlFace DMEControlFace2;
    APControlFace APControlFace1;
    tvsmtimer tvsmtimer1;

    SelectionList inst3TypeList{panelState, "Combo2", kinds(), Text::instrument2Selection};
    SelectionList inst2TypeList{panelState, "Combo3", kinds(), Text::instrument1Selection};
    CommandButton inst1ChannelButton{panelState, "Command5", Text::channelNav, Text::channelTip};
    CommandButton inst2ChannelButton{panelState, "Command10", Text::channelNav, Text::channelTip};
    CommandButton inst3ChannelButton{panelState, "Command9", Text::channelNav, Text::channelTip};
    OptionGroup inst2SizeGroup;
    OptionButton inst2Small{panelState, inst2SizeGroup, "Option1", Text::smallDisplay,
                            Text::smallDisplayTip};
    OptionButton inst2Large{panelState, inst2SizeGroup, "Option2", Text::largeDisplay,
                            Text::largeDisplayTip};
    OptionGroup inst3SizeGroup;
    OptionButton inst3Small{panelState, inst3SizeGroup, "Option3", Text::smallDisplay,
                            Text::smallDisplayTip};
    OptionButton inst3Large{panelState, inst3SizeGroup, "Option4", Text::largeDisplay,
                            Text::largeDisplayTip};
    CheckBox inst2RadialBox{panelState, "Check2", Text::showRadial, Text::showRadialTip};
    CheckBox inst3RadialBox{panelState, "Check1", Text::showRadial, Text::showRadialTip};
    CheckBox inst2OverlayBox{panelState, "Check12", Text::rmiPointer, Text::rmiPointerTip};
    CheckBox inst3OverlayBox{panelState, "Check10", Text::rmiPointer, Text::rmiPointerTip};
    CommandButton stopwatchStartButton{panelState, "StopwatchStart", Text::stopwatchStart,
                                       Text::stopwatchStartTip};
    CommandButton stopwatchResetButton{panelState, "StopwatchReset", Text::stopwatchReset,
                                       Text::stopwatchResetTip};
    CheckBox floatingGyroBox{panelState, "FloatingGyro", Text::floatingGyro, Text::floatingGyroTip};

  private:
    static std::vector<Text> kinds() {
        return {Text::kindAdf, Text::kindRmi, Text::kindVor, Text::kindHsi, Text::kindDg};
    }
};

} // namespace tarnel
