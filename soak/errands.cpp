#include "soak/errands.h"

#include "window/chart/chart_view.h"
#include "window/quiz/quiz_panel.h"
#include "window/widgets/replay_bar.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QPalette>
#include <QTest>

namespace tarnel {

namespace {

/// One way to use the program, and what is taken for it.
class Errand {
  public:
    Errand(Program& owner, SoakState& soak) : program(owner), state(soak), dice(soak.dice) {}

    void playAbout();
    void useMenus();
    void answer();
    void workOnTheChart();
    void editStations();
    void replay();
    void keepFiles();
    void writeComments();
    void lookAtDebrief();
    void changeDesktop();
    void begin();
    void fly();

  private:
    QPoint anywhere(const QWidget& widget) {
        return {dice.below(std::max(1, widget.width())), dice.below(std::max(1, widget.height()))};
    }
    void entry(const char* name) {
        program.hand.useEntry(program.window, name);
        program.settle();
    }
    bool press(const char* name) {
        const bool found = program.hand.press(program.window, name);
        program.settle();
        return found;
    }
    void answerQuestion(const QuizPanel& quiz);

    Program& program;
    SoakState& state;
    Dice& dice;
};

/// What comes to hand, as a child would.
void Errand::playAbout() {
    for (int i = dice.between(1, 12); i > 0; --i) {
        program.hand.useAny();
        program.settle();
    }
    if (dice.once(3))
        program.hand.useKey();
    program.settle();
}

void Errand::useMenus() {
    if (QApplication::activeModalWidget())
        return;
    program.hand.useMenus(*program.window.menuBar());
    program.settle();
    if (QApplication::activeModalWidget())
        for (int i = dice.between(1, 12); i > 0; --i) {
            program.hand.useAny();
            program.settle();
        }
}

void Errand::answerQuestion(const QuizPanel& quiz) {
    for (int i = dice.between(1, 6); i > 0; --i) {
        program.hand.useWithin(quiz);
        program.settle();
    }
    const ExercisePanel* panel = program.form.QAform1.activePanel();
    if (!panel)
        return;
    if (dice.once(3) && press(panel->flyButton.name().data())) {
        fly();
        program.pass(dice.between(30, 600));
        if (dice.once(2))
            program.form.guarded([this] { program.form.StopFly(); });
        program.settle();
    }
    if (dice.once(2)) {
        press(panel->solutionButton.name().data());
        replay();
    }
    press(panel->nextButton.name().data());
}

/// An exercise from its begin to its end, or left open.
void Errand::answer() {
    if (dice.once(2))
        program.rest();
    const auto& items = program.form.exerciseMenu.exercises;
    const bool ran = program.form.exercise.runs();
    entry(std::string(dice.of(items)->name()).c_str());
    state.opened += !ran && program.form.exercise.runs() ? 1 : 0;
    const auto& quiz = *program.window.findChild<QuizPanel*>();
    for (int i = dice.between(1, 5); i > 0 && program.form.exercise.runs(); --i)
        answerQuestion(quiz);
    if (ExercisePanel* panel = program.form.QAform1.activePanel(); panel && !dice.once(4))
        press(panel->cancelButton.name().data());
}

/// Places and turns the aircraft, draws wind, goes closer and farther, takes it back.
void Errand::workOnTheChart() {
    auto& chart = *program.window.findChild<ChartView*>();
    if (dice.once(3))
        program.rest();
    if (!chart.isVisible() || QApplication::activeModalWidget())
        return;
    if (dice.once(3))
        entry("northUp");
    if (dice.once(4))
        press("PageWind") || press("Command3");
    for (int i = dice.between(1, 5); i > 0; --i) {
        state.trail.note("chart");
        switch (dice.below(4)) {
        case 0:
            program.hand.click(chart, anywhere(chart));
            break;
        case 1:
            program.hand.drag(chart, anywhere(chart), anywhere(chart));
            break;
        case 2:
            program.hand.drag(chart, anywhere(chart), anywhere(chart), Qt::RightButton);
            break;
        default:
            program.hand.wheel(chart);
        }
        program.settle();
    }
    entry(dice.once(2) ? "mnuUndo" : "mnuRedo");
}

/// Carries stations over the chart, and opens their editor.
void Errand::editStations() {
    program.rest();
    entry("northUp");
    entry("editChart");
    auto& chart = *program.window.findChild<ChartView*>();
    const ChartPicture& picture = program.form.UserControl11.picture;
    const double scale = std::min(chart.width(), chart.height()) / picture.size;
    for (const auto& symbol : picture.symbols) {
        const QPoint at{static_cast<int>((symbol.area.left + symbol.area.width / 2) * scale),
                        static_cast<int>((symbol.area.top + symbol.area.height / 2) * scale)};
        if (!chart.rect().contains(at) || dice.once(3))
            continue;
        state.trail.note("station");
        if (dice.once(3)) {
            program.hand.click(chart, at);
            QTest::mouseDClick(&chart, Qt::LeftButton, {}, at);
        } else
            program.hand.drag(chart, at, dice.once(4) ? anywhere(chart) : at + QPoint(5, 9));
        program.settle();
        while (QApplication::activeModalWidget() && !dice.once(8)) {
            program.hand.useAny();
            program.settle();
        }
        if (QWidget* dialog = QApplication::activeModalWidget())
            dialog->close();
    }
    program.rest();
}

void Errand::replay() {
    press("PageReplay");
    press("Option11");
    program.pass(dice.between(1, 20));
    for (int i = dice.below(3); i > 0; --i)
        if (auto* bar = program.window.findChild<ReplayBar*>(); bar && bar->isVisible()) {
            state.trail.note("drag the replay");
            program.hand.drag(*bar, anywhere(*bar), anywhere(*bar));
            program.settle();
            program.pass(dice.between(1, 10));
        }
    press("Option12");
}

void Errand::keepFiles() {
    program.rest();
    entry(dice.of(std::initializer_list<const char*>{"mnuSaveSessionAs", "mnuSaveSession",
                                                     "mnuSaveChartAs", "mnuExportFlight"}));
    entry(dice.of(std::initializer_list<const char*>{
        "mnuLoadSession", "mnuLoadSession", "mnuLoadOLDSession", "mnuloadchart", "mnuFlyAlong"}));
}

void Errand::writeComments() {
    press("WriteComments");
    if (auto* text = program.window.findChild<QLineEdit*>(QStringLiteral("Text8"));
        text && text->isVisible() && text->isEnabled())
        program.hand.use(*text);
    press("CommentStart");
    program.pass(dice.between(1, 30));
    press("CommentStart");
    press(dice.of(
        std::initializer_list<const char*>{"Command14", "Command15", "Command12", "Command13"}));
}

void Errand::lookAtDebrief() {
    program.form.guarded([this] { program.form.StopFly(); });
    program.settle();
    entry("mnuDebrief");
    press("DebriefJudge");
    for (int i = dice.between(1, 8); i > 0; --i) {
        program.hand.useAny();
        program.settle();
    }
    press(dice.once(3) ? "DebriefFlyAgain" : "DebriefClose");
}

/// The size of the window, and colours and letters of the desktop.
void Errand::changeDesktop() {
    constexpr unsigned grounds[] = {0xEFEFEF, 0x2A2E32, 0x000000, 0xFFFFFF};
    state.trail.note("desktop");
    program.window.resize(dice.between(940, 1920), dice.between(480, 1200));
    if (dice.once(3))
        QApplication::setPalette(QPalette(QColor(dice.of(grounds))));
    if (dice.once(3)) {
        QFont letters = QApplication::font();
        letters.setPixelSize(dice.between(12, 22));
        QApplication::setFont(letters);
    }
    program.settle();
}

/// A practice flight or an introduction, so that there is a way to fly along.
void Errand::begin() {
    program.rest();
    const std::string number = std::to_string(dice.between(1, 10));
    const std::string names[] = {"vor" + number, "adf" + number, "intro1", "intro2",
                                 "mnuNewSession"};
    entry(dice.of(names).c_str());
}

/// Most flights at the highest speed, some on a new heading.
void Errand::fly() {
    if (program.form.UserControl11.c_TimerEN != 1)
        press("Command6");
    if (!dice.once(4))
        press("Option8");
    if (dice.once(2)) {
        state.trail.note("steer");
        program.form.guarded([this] {
            program.form.coupling.setHeadingBug(static_cast<std::int16_t>(dice.below(360)));
        });
        program.settle();
    }
}

struct Choice {
    int share; ///< of a hundred
    void (Errand::*what)();
};

constexpr Choice choices[] = {
    {30, &Errand::playAbout},      {16, &Errand::useMenus},     {12, &Errand::answer},
    {12, &Errand::workOnTheChart}, {3, &Errand::editStations},  {6, &Errand::replay},
    {6, &Errand::keepFiles},       {4, &Errand::writeComments}, {4, &Errand::lookAtDebrief},
    {2, &Errand::changeDesktop},   {5, &Errand::begin},
};

} // namespace

void doAnErrand(Program& program, SoakState& state) {
    Errand errand(program, state);
    int left = state.dice.below(100);
    for (const Choice& choice : choices)
        if ((left -= choice.share) < 0) {
            (errand.*choice.what)();
            break;
        }
    if (QApplication::activeModalWidget() && state.dice.once(2))
        program.rest();
    if (program.form.UserControl11.c_TimerEN == 1 || state.dice.once(2)) {
        errand.fly();
        program.pass(state.dice.between(20, 240));
    }
}

} // namespace tarnel
