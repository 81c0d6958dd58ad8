#include "instruments/ap_control_face.h"
#include "instruments/dme_control_face.h"
#include "instruments/stopwatch_face.h"
#include "instruments/user_control_1.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace tarnel {
namespace {

std::string namesOf(const PropertyBag& bag) {
    std::ostringstream names;
    for (const PropertyBase* property : bag.all())
        names << property->name() << '=' << property->text() << ' ';
    return names.str();
}

// Saved states and scripts find properties by these names and begin with these values.
TEST(PropertyNames, eachControlListsItsOwn) {
    EXPECT_EQ(namesOf(UserControl_1().properties),
              "angle=0 adfradial=0 c_HDG=0 Display=0 BackStyle=0 Enabled=0 c_LabelEN1=0 "
              "c_LabelEN2=0 c_LabelEN3=0 c_LabelEN4=0 c_LabelText1=0 c_LabelText2=0 "
              "c_LabelText3=0 c_LabelText4=0 c_LabelText5=0 c_LabelText6=0 c_LOCEN=0 c_OBS_x=0 "
              "Picture= c_Large=0 c_HDGbug=0 c_HDGbugChange=0 c_NAVselect=1 c_ADFCardselect=1 "
              "c_OBSKnobchange=0 c_MainAppPath= c_OBS=0 c_MouseOBS=0 c_MouseOBS_HSI=0 "
              "c_DisableKnobs=1 adf2radial=0 c_RMIoverlayEN=0 ");
    const std::string radio = "c_Freq1=888.88 c_Freq2=888.88 c_Freq3=888.88 c_NumberOfFreqs=";
    const std::string rest = " c_SetFreq=0 c_OnOff=0 c_LockSettings=0 c_NAVFace=1 ";
    EXPECT_EQ(namesOf(NAVControlFace().properties), radio + "1" + rest);
    EXPECT_EQ(namesOf(ADFControlFace().properties), radio + "1" + rest);
    EXPECT_EQ(namesOf(DMEControlFace().properties),
              radio + "0" + rest +
                  "c_DMEnm=0 c_DMEkt=0 c_BlankDisplay=0 c_NAV1f=0 c_NAV2f=0 c_vor1on=0 c_vor2on=0 "
                  "c_loc1on=0 ");
    EXPECT_EQ(namesOf(APControlFace().properties),
              "c_HDG=0 c_ActualHDG=0 c_TAS=0 c_ALT=0 c_APTurnrate=0 c_startTimer=0 c_HDGChange=0 "
              "c_LockSettings=0 c_OnOff=0 c_NAVFace=1 BackColor=0 ");
    EXPECT_EQ(namesOf(tvsmtimer().properties),
              "minsec=00.12 BackColor=0 ForeColor=0 Enabled=0 Font= BackStyle=0 BorderStyle=0 ");
}

} // namespace
} // namespace tarnel
