#include "support/temporary_folder.h"
#include "support/told.h"
#include "window/student_fixture.h"
#include "window/widgets/replay_bar.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSpinBox>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace tarnel {
namespace {

/// A student whose hand tries everything, at rest behind a flight, with the books on the disk.
class HandStudent : public Student {
  protected:
    using State = std::map<std::string, std::string>;

    void SetUp() override {
        for (const auto& entry : std::filesystem::directory_iterator(TARNEL_APPLICATION_FOLDER))
            if (entry.path().filename() != "Buch")
                std::filesystem::create_symlink(entry.path(), folder.at / entry.path().filename());
        std::filesystem::create_directory(folder.at / "Buch");
        std::ofstream(folder.at / "Buch/buch_en.pdf") << '-';
        applicationFolder = folder.path;
    }
    void openBehindAFlight() {
        open();
        form->inst2TypeList.pick(hsi - 1);
        form->stopwatchStartButton.click();
        form->commentPanel.write.click();
        form->startButton.click();
        fly(20);
        form->startButton.click();
        settle();
        world = {};
    }
    /// What a hand may change, by name.
    State state() {
        State all{{"exercise", told(form->QAform1.c_QAtype)},
                  {"replay",
                   told(form->replay.runs(), form->replayPage.loop, form->replayPage.interpolate)},
                  {"large", told(form->inst2.instrument.c_Large, form->inst3.instrument.c_Large)},
                  {"pointers", told(form->inst2.instrument.c_RMIoverlayEN,
                                    form->inst3.instrument.c_RMIoverlayEN)},
                  {"holder", told(form->inst2ChannelButton.caption() == Text::channelObs)},
                  {"gyro", told(find<QWidget>("additional_DG").isVisible())},
                  {"wind", form->windPage.readout.text()},
                  {"comment", told(form->commentPanel.write, form->commentPanel.number,
                                   form->commentPanel.text)},
                  {"marks", told(form->UserControl11.hasCommentMarks())},
                  {"latitude", told(form->UserControl11.aircraft.aircraftLat)},
                  {"centre", told(toPlain(form->UserControl11.view.mapCenter).latitude)},
                  {"open", told(window->isVisible())},
                  {"progress", told(window->findChild<QWidget*>("Progress") != nullptr)},
                  {"keys", told(window->findChild<QWidget*>("KeyList") != nullptr)},
                  {"keyboard",
                   window->focusWidget() ? window->focusWidget()->objectName().toStdString() : ""},
                  {"held", told(form->UserControl11.mouse.holds())},
                  {"screen", told(window->isFullScreen())},
                  {"menu", QApplication::activePopupWidget()
                               ? QApplication::activePopupWidget()->objectName().toStdString()
                               : ""},
                  {"finder", told(window->findChild<QWidget*>("ChartFinder") != nullptr)},
                  {"debrief", told(form->debrief.isOpen(), form->debrief.choosesTask())},
                  {"choice", told(form->debrief.choice().course)},
                  {"forms", told(form->documents.bookForm.shown, form->documents.chartForm.shown)},
                  {"box", world.boxes.empty() ? "" : world.boxes.back()},
                  {"opened", world.opened.empty() ? "" : world.opened.back()},
                  {"asked", world.asked.empty() ? "" : world.asked.back()}};
        if (!world.questions.empty())
            all["file"] =
                (world.questions.back().saves ? "save" : "load") + world.questions.back().extension;
        for (const PropertyBase* property : form->UserControl11.properties.all())
            all[std::string(property->name())] = property->text();
        return all;
    }
    /// Rows of a path, with a slash between its parts, and of what its last part has to change:
    /// "name=part of the new value".
    void expectEffects(const std::string& rows,
                       const std::function<void(const std::string&)>& use) {
        std::istringstream rest(rows);
        for (std::string row, effect; rest >> row >> effect;) {
            SCOPED_TRACE(row);
            openBehindAFlight();
            std::istringstream path(row);
            State before;
            for (std::string part; std::getline(path, part, '/');) {
                before = state();
                use(part);
                settle();
            }
            const std::size_t sign = effect.find('=');
            const std::string name = effect.substr(0, sign);
            std::string now = state().at(name);
            std::erase(now, ' ');
            EXPECT_NE(state().at(name), before[name]) << name;
            EXPECT_THAT(now, testing::HasSubstr(effect.substr(sign + 1))) << name;
            used.insert(row.substr(row.rfind('/') + 1));
        }
    }
    /// The widgets of the window, by name or by what they lie on.
    std::map<std::string, QWidget*> controls() {
        std::map<std::string, QWidget*> all;
        for (auto* widget : window->findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled() ||
                widget->focusPolicy() == Qt::NoFocus)
                continue;
            std::string name = widget->objectName().toStdString();
            if (name.empty())
                name = widget->parentWidget()->objectName().toStdString();
            while (all.contains(name))
                name += '+';
            all[name] = widget;
        }
        return all;
    }
    static void useWidget(QWidget& widget) {
        if (auto* list = qobject_cast<QComboBox*>(&widget)) {
            list->setCurrentIndex(vor - 1);
            emit list->activated(vor - 1);
        } else if (auto* number = qobject_cast<QSpinBox*>(&widget))
            number->stepUp();
        else if (qobject_cast<QAbstractButton*>(&widget))
            QTest::mouseClick(&widget, Qt::LeftButton);
        else if (qobject_cast<QLineEdit*>(&widget))
            QTest::keyClicks(&widget, QStringLiteral("a"));
        else
            QTest::keyClick(&widget, qobject_cast<ReplayBar*>(&widget) ? Qt::Key_Left : Qt::Key_Up);
    }

    TemporaryFolder folder;
    std::set<std::string> used;
};

// Each control reaches what it is named for, from a state in which that is still to be done.
TEST_F(HandStudent, EveryControlReachesTheModel) {
    const auto use = [this](const std::string& name) {
        if (name.starts_with("Page"))
            turnTo(name.c_str());
        else if (name == "fly")
            fly(8);
        else if (name == "debrief")
            form->debriefControls.item.click();
        else
            useWidget(*controls().at(name));
    };
    expectEffects(
        "ADFControlFace1 c_ADFfreq=1 NAVControlFace1 c_NAV1freq=1 NAVControlFace2 c_NAV2freq=2 "
        "DMEControlFace1 c_DMEfreq=1 APControlFace1 c_APhdg=1 APControlFace1+ c_APtas=121 "
        "APControlFace1++ c_APalt=6100 UserControl13_0 c_obsI2=1 UserControl13_1 c_obsI3=1 "
        "Check1 c_NAVRadI3=1 Check2 c_NAVRadI2=1 Check10 pointers=01 Check12 pointers=10 "
        "Combo2 c_inst3=3 Combo3 c_inst2=3 Command9 holder=0 Command9/Command10 holder=1 "
        "Size_Combo2 large=01 Size_Combo3 large=10 "
        "StopwatchStart c_Timer_on_off=0 StopwatchReset c_ApSeconds=0 "
        "Command6 c_TimerEN=1 Option6 c_TimerSIMrate=666 Option7 c_TimerSIMrate=166 "
        "Option8 c_TimerSIMrate=83 Option8/Option5 c_TimerSIMrate=333 "
        "Text8 comment=11a CommentStart marks=1 Command15 comment=12 "
        "Command15/Command14 comment=11 "
        "CommentStart/Command6/fly/Command6/CommentStart/HScroll1/Command12 marks=0 "
        "CommentStart/Command13 marks=0 HeadingUp c_MAPnorthUP=0 HeadingUp/NorthUp c_MAPnorthUP=1 "
        "ZoomIn c_MAPscale=250 ZoomOut c_MAPscale=167 "
        "PageChart/Command1 centre=48 PageChart/Scale_500/Command2 c_MAPscale=234 "
        "PageChart/Scale_125 c_MAPscale=125 PageChart/Scale_167 c_MAPscale=167 "
        "PageChart/Scale_250 c_MAPscale=250 PageChart/Scale_333 c_MAPscale=333 "
        "PageChart/Scale_500 c_MAPscale=500 PageChart/Scale_1000 c_MAPscale=1000 "
        "PageChart/Check3 c_SpeedVectorEN=1 PageChart/Check4 c_TraceEN=0 "
        "PageChart/Check5 c_AirplaneEN=0 PageChart/Command8 c_NAVRadBorder=-1 "
        "PageChart/FloatingGyro gyro=1 "
        "Option11 replay=100 Option11/Option12 replay=000 Check11 replay=010 Check13 replay=001 "
        "HScroll1 c_RepeatValue=14 Check6 c_replayInstLock=1 Check7 c_AirplaneEN=0 "
        "WriteComments comment=0 PageWind/WindDirection c_wind=5/0 PageWind/WindSpeed c_wind=0/5 "
        "PageWind/Option13 c_WindSetEN=3 PageWind/Option14 c_WindSetEN=2 "
        "PageWind/Option14/WindOff c_wind=0/0 PageWind/Command3 c_WindSetEN=1 "
        "PageWind/Check8 wind=0/0 "
        "PageStations/Vor1On c_VOR1EN=0 PageStations/Vor2On c_VOR2EN=0 "
        "PageStations/Ndb1On c_NDB1EN=0 PageStations/Ndb2On c_NDB2EN=0 "
        "PageStations/LocOn c_LOC1EN=0 PageStations/Dme1On c_DME1EN=0 "
        "PageStations/Dme2On c_DME2EN=0 PageStations/Dme5On c_DME5EN=0 "
        "PageStations/Check9 c_mapedit=1 debrief/TaskCourse choice=1 debrief/DebriefClose "
        "debrief=0 "
        "debrief/DebriefJudge debrief=10 debrief/DebriefJudge/DebriefTask debrief=11 "
        "debrief/DebriefJudge/DebriefPlotView c_RepeatValue=2 "
        "debrief/DebriefJudge/DebriefFlyAgain debrief=0",
        use);
    openBehindAFlight();
    const std::set<std::string> others{"",
                                       "+",
                                       "Desk",
                                       "HeadingUp+",
                                       "NorthUp+",
                                       "Pages",
                                       "qt_spinbox_lineedit",
                                       "qt_spinbox_lineedit+"};
    for (const char* page : {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
        turnTo(page);
        for (const auto& [name, control] : controls())
            EXPECT_TRUE(used.contains(name) || others.contains(name)) << name << " is left out";
    }
}

TEST_F(HandStudent, EveryItemOfTheMenusDoesWhatItIsNamedFor) {
    std::string rows =
        "mnuNewSession c_TraceBufferMax=1 mnuLoadSession file=loadts "
        "mnuExportFlight file=savegpx mnuFlyAlong file=loadgpx "
        "mnuLoadOLDSession file=loadts mnuSaveSession file=savets mnuSaveSessionAs file=savets "
        "mnuNewChart finder=1 mnuloadchart file=loadmap "
        "mnuSaveChart file=savemap mnuSaveChartAs file=savemap "
        "fencrypt c_doEncrypt=-1 mnuExit open=0 placed/mnuUndo latitude=48.3011 "
        "placeByKeys keyboard= turnByKeys held=1 fullScreen screen=1 keyList keys=1 "
        "keyMenuBar menu=mnufile editChart/keyStepOut c_mapedit=0 "
        "placed/mnuUndo/mnuRedo latitude=48.36 editChart c_mapedit=1 adfpos exercise=5 "
        "qdm exercise=6 qdr exercise=7 hsipos2 exercise=1 mnuAltitude large=01 hldhsi exercise=3 "
        "dmearcs exercise=9 stdvor exercise=2 wind exercise=8 hlddg exercise=4 "
        "qdnorient exercise=10 resstats asked=exercises mnuProgress progress=1 "
        "intro1 c_SessionFileName=e-introduction1.ts intro2 c_SessionFileName=e-introduction2.ts "
        "bookStart opened=buch_en.pdf0 pdf31 opened=buch_en.pdf30 "
        "bookAbbreviations opened=buch_en.pdf250 bookIndex opened=buch_en.pdf251 "
        "hilfeindex opened=ashelp userguide opened=en/index.htmlinthebrowser "
        "webqxr opened=en/tarnel.htmlinthebrowser frmBuchPDF forms=10 frmJeppPDF forms=01 "
        "eddk opened=eddk eddl opened=eddl eddr opened=eddr edds opened=edds edma opened=edma lime "
        "opened=lime "
        "lkkv opened=lkkv lkpr opened=lkpr lowg opened=lowg "
        "test box=Tarnel headingUp c_MAPnorthUP=0 headingUp/northUp c_MAPnorthUP=1 "
        "keyM c_TimerEN=1 keyP replay=100 keyH c_AirplaneEN=0 keyT c_TraceEN=0 "
        "keyV c_SpeedVectorEN=1 keyW c_WindSetEN=3 keyR c_NAVRadBorder=-1 zoomIn c_MAPscale=250 "
        "zoomOut c_MAPscale=167 floatingGyro gyro=1 mnuDebrief debrief=11 "
        "mnuDebrief/DebriefJudge/DebriefExportPage file=savepdf "
        "mnuDebrief/DebriefJudge/DebriefExportPicture file=savepng "
        "mnuDebrief/DebriefJudge/DebriefExportValues file=savecsv";
    for (const std::string kind : {"adf", "vor"})
        for (int i = 1; i <= 10; ++i)
            rows += " " + kind + std::to_string(i) + " c_SessionFileName=e-" + kind + "practise" +
                    (i < 10 ? "0" : "") + std::to_string(i) + ".ts";
    expectEffects(rows, [this](const std::string& name) {
        if (name == "DebriefJudge")
            return form->debriefControls.judge.click();
        if (name != "placed")
            return find<QAction>(name.c_str()).trigger();
        form->UserControl11.mouse.down(ChartButton::left, {2000, 2000});
        form->UserControl11.mouse.up();
    });
    const std::set<std::string> openedOnly = {"", "mnuBringBack", "mnuOwnCourses", "mnuRecent"};
    int page = 0;
    for (auto* item : window->findChildren<QAction*>()) {
        const std::string name = item->objectName().toStdString();
        if (name.starts_with("pdf")) {
            item->trigger();
            const int opened = std::stoi(world.opened.back().substr(world.opened.back().find(' ')));
            EXPECT_TRUE(name.starts_with("pdf0") || opened >= page) << name;
            page = name.starts_with("pdf0") ? 0 : opened;
        } else
            EXPECT_TRUE(openedOnly.contains(name) || used.contains(name)) << name;
    }
}

} // namespace
} // namespace tarnel
