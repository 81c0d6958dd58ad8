#include "shell/form_1.h"

namespace tarnel {

Form1::Form1(const StringTable& table, OutsideWorld& world, std::string applicationPath)
    : texts(table),
      outside(world),
      UserControl11(*this),
      inst2Links{inst2,
                 inst2ChannelButton,
                 inst2TypeList,
                 inst2OverlayBox,
                 inst2RadialBox,
                 UserControl11.c_inst2,
                 UserControl11.c_Inst2NAVselect,
                 UserControl11.c_Inst2_ADFCardselect,
                 UserControl11.c_NAVRadI2,
                 UserControl11.c_obsI2},
      inst3Links{inst3,
                 inst3ChannelButton,
                 inst3TypeList,
                 inst3OverlayBox,
                 inst3RadialBox,
                 UserControl11.c_inst3,
                 UserControl11.c_Inst3NAVselect,
                 UserControl11.c_Inst3_ADFCardselect,
                 UserControl11.c_NAVRadI3,
                 UserControl11.c_obsI3} {
    connectControls();
    guarded([&] { startUp(applicationPath); });
}

std::vector<Text> Form1::instrumentKinds() {
    return {Text::kindAdf, Text::kindRmi, Text::kindVor, Text::kindHsi, Text::kindDg};
}

void Form1::connectPosition(const PositionLinks& links) {
    links.typeList.onClick = [this, &links] {
        selectInstrument(links, static_cast<std::int16_t>(links.typeList.index() + 1));
    };
    links.channelButton.onClick = [this, &links] { stepChannel(links.position); };
    links.radialBox.onClick = [&links] {
        links.radialShown = static_cast<std::int16_t>(links.radialBox.value());
    };
}

void Form1::connectStrip() {
    startButton.onClick = [this] { startOrStop(); };
    rateReal.onClick = [this] { setRate(333); };
    rateHalf.onClick = [this] { setRate(666); };
    rateDouble.onClick = [this] { setRate(166); };
    rateQuadruple.onClick = [this] { setRate(83); };
    radialCycleButton.onClick = [this] { cycleRadialLines(); };
    connectFiles();
    connectExercises();
    connectChartPage();
    connectReplay();
    connectWind();
    connectHistory();
    connectComments();
}

void Form1::connectControls() {
    connectStrip();
    stopwatchStartButton.onClick = [this] { toggleStopwatch(); };
    stopwatchResetButton.onClick = [this] { resetStopwatch(); };
    floatingGyroBox.onClick = [this] { setFloatingGyroOpen(floatingGyroBox.value() == 1); };

    connectPosition(inst2Links);
    connectPosition(inst3Links);
    inst1ChannelButton.onClick = [this] { stepChannel(inst1); };
    inst2Small.onClick = [this] { PositionInst2(false); };
    inst2Large.onClick = [this] { PositionInst2(true); };
    inst3Small.onClick = [this] { SwitchInst3(false); };
    inst3Large.onClick = [this] { SwitchInst3(true); };
    for (UserControl_1* instrument :
         {&inst1.instrument, &inst2.instrument, &inst3.instrument, &UserControl_DG})
        instrument->showMessage = [this](const std::string&) {
            showBox(text(Text::windowTitle), text(Text::unsupportedDisplay));
        };
    UserControl11.mouse.headingDrawn = [this](std::int16_t heading) { setHeadingBug(heading); };
}

void Form1::Timer1() {
    if (!boxUp)
        guarded([this] {
            tick();
            tellSettingsTrouble();
        });
}

void Form1::simulationTimer() {
    if (!boxUp && UserControl11.c_TimerEN == 1)
        guarded([this] { UserControl11.Timer1(); });
}

void Form1::Timer2() {
    if (!boxUp && replayOn != 0)
        guarded([this] { pumpReplay(); });
}

void Form1::autopilotTimer() {
    if (!boxUp)
        guarded([this] { APControlFace1.Timer1(); });
}

FeedSources Form1::feedSources() {
    return {UserControl11, NAVControlFace1, NAVControlFace2, ADFControlFace1, texts, locCourse};
}

} // namespace tarnel
