#include "shell/form_1.h"

namespace tarnel {

Form1::Form1(const StringTable& table, OutsideWorld& world, std::string applicationPath)
    : PanelControls(state), texts(table), outside(world), UserControl11(*this) {
    connectControls();
    guarded([&] { startUp(applicationPath); });
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

void Form1::setFloatingGyroOpen(bool open) {
    floatingGyroBox.set(open ? 1 : 0);
    if (!open)
        return;
    UserControl_DG.c_MainAppPath = UserControl11.c_MainAppPath.get();
    UserControl_DG.Display = dg;
}

} // namespace tarnel
