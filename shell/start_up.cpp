#include "shell/form_1.h"

namespace tarnel {

namespace {

constexpr double chartCentre = 3405;
constexpr double startAltitude = 6000;
constexpr double startSpeed = 120;

template <class Face>
void switchOn(Face& face, std::int16_t picture) {
    face.c_NAVFace = picture;
    face.c_OnOff = 1;
    face.c_LockSettings = 1;
}

template <class Face>
void tuneVor(Face& face, std::int16_t picture, std::int16_t slot) {
    switchOn(face, picture);
    face.c_Freq1 = "112.30";
    face.c_Freq2 = "108.40";
    face.c_Freq3 = "108.70";
    face.c_SetFreq = slot;
    face.c_NumberOfFreqs = 3;
}

void tuneNdb(ADFControlFace& face, std::int16_t picture, std::int16_t slot) {
    switchOn(face, picture);
    face.c_Freq1 = "338";
    face.c_Freq2 = "369";
    face.c_SetFreq = slot;
    face.c_NumberOfFreqs = 2;
}

void tuneReceivers(PanelControls& panel) {
    tuneVor(panel.NAVControlFace1, 1, 0);
    tuneNdb(panel.ADFControlFace1, 1, 0);
    tuneVor(panel.NAVControlFace2, 2, 1);
    tuneNdb(panel.ADFControlFace2, 2, 1);
    tuneVor(panel.DMEControlFace1, 1, 0);
    panel.DMEControlFace2.c_NAVFace = 2;
    panel.DMEControlFace1.c_BlankDisplay = 1;
    panel.DMEControlFace2.c_BlankDisplay = 1;
    panel.DMEControlFace1.c_SetFreq = 0;
}

} // namespace

void Form1::setApplicationPath(const std::string& path) {
    UserControl11.c_MainAppPath = path;
    UserControl11.c_ScratchPath = path;
    QAform1.c_MainAppPath = path;
    for (UserControl_1* instrument :
         {&inst2.instrument, &inst3.instrument, &inst1.instrument, &UserControl_DG})
        instrument->c_MainAppPath = path;
}

void Form1::setPanelDefaults() {
    windPanel.setText(std::string(texts[Text::panelWindOff]));
    hidePanel.setText(std::string(texts[Text::panelHideOff]));
    vectorsPanel.setText(std::string(texts[Text::panelVectorsOff]));
    showMode();
    chartPage.trace.set(1);
    pages.replay.choose();
    replayPage.stop.show();
    windPage.none.show();
    practicePanel.frame.setVisible(false);
    commentPanel.comment.setVisible(false);
    backButton.setVisible(false);
    usable.update();
}

void Form1::startUp(const std::string& applicationPath) {
    setApplicationPath(applicationPath);
    UserControl11.c_CenterTwips = chartCentre;
    UserControl11.c_MAPnorthUP = 1;
    UserControl11.c_inst3 = dg;
    UserControl11.c_inst2 = adf;

    rateReal.choose();
    inst2Small.choose();
    inst3Small.choose();
    inst3TypeList.select(hsi - 1);
    inst2TypeList.select(rmi - 1);
    inst1.type = inst2.type;
    inst1.instrument.Display = inst1.type;

    APControlFace1.c_ALT = startAltitude;
    UserControl11.c_Altitude = startAltitude;
    switchOn(APControlFace1, 1);
    APControlFace1.c_HDG = 0;
    APControlFace1.c_TAS = startSpeed;
    APControlFace1.c_startTimer = 1;
    tuneReceivers(*this);

    coupling.setLocked(false);
    UserControl11.c_TimerEN = 0;
    UserControl11.c_AirplaneEN = 1;
    UserControl11.c_SpeedVectorEN = 0;
    UserControl11.c_NAVRadCenter = on;
    setPanelDefaults();

    UserControl11.newSessionName = texts[Text::newSessionFile];
    UserControl11.c_ChartFileName = applicationPath + "/default.map";
    UserControl11.c_loadChart = 2;
    UserControl11.resetView();
    UserControl11.c_SessionFileName = UserControl11.newSessionName;
    tick();
    UserControl11.markFreshStart();
}

} // namespace tarnel
