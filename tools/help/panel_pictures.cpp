#include "tools/help/panel_pictures.h"

#include "exercises/exercise_catalogue.h"
#include "flights/flight.h"
#include "shell/application_folder.h"
#include "shell/memory_log.h"
#include "tools/output/output_file.h"
#include "window/chart/chart_view.h"
#include "window/chart/comment_card.h"
#include "window/debrief/debrief_card.h"
#include "window/debrief/debrief_plot.h"
#include "window/dials/instrument_view.h"
#include "window/frame/main_window.h"
#include "window/progress/progress_page.h"
#include "window/quiz/quiz_panel.h"
#include "window/radios/autopilot_module.h"
#include "window/radios/dme_module.h"
#include "window/radios/nav_module.h"
#include "window/radios/stopwatch_module.h"
#include "window/strip/control_strip.h"
#include "window/widgets/dressing.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>

#include <algorithm>
#include <limits>
#include <span>
#include <utility>

namespace tarnel {

namespace {

/// The trainer at some moment, with its window.
class Stage {
  public:
    explicit Stage(const StringTable& texts) : form(texts, world, applicationFolder()) {}

    void fly(int seconds) {
        constexpr int ticksPerSecond = 3;
        form.startButton.click();
        for (int i = 0; i < seconds * ticksPerSecond; ++i) {
            form.simulationTimer();
            form.Timer1();
        }
        form.startButton.click();
        form.Timer1();
    }

    void show(QSize size = {1280, 800}) {
        dressApplication(form.texts, QString::fromStdString(applicationFolder()));
        window = std::make_unique<MainWindow>(form);
        window->resize(size);
        window->show();
        settle();
    }

    void settle() {
        form.Timer1();
        form.Timer1();
        window->refresh();
        QApplication::processEvents();
    }

    /// Where all parts of these kinds are that can be seen, as one.
    template <class... Parts>
    QRect placeOf() const {
        QRect place;
        for (const auto* part : window->findChildren<QWidget*>())
            if (part->isVisible() && (... || dynamic_cast<const Parts*>(part)))
                place |= QRect(part->mapTo(window.get(), QPoint()), part->size());
        return place;
    }

    RecordingWorld world;
    Form1 form;
    std::unique_ptr<MainWindow> window;
};

/// Some weeks of answers by one who has trouble with entries.
std::unique_ptr<TrainingLog> someAnswers(std::int64_t now) {
    constexpr std::int64_t day = 86'400'000;
    auto log = std::make_unique<MemoryLog>();
    const auto answer = [&](ExerciseType exercise, Text spot, int days, int asked, int right) {
        for (int i = 0; i < asked; ++i) {
            AnsweredRow row;
            row.when = row.asked = now - days * day - i;
            row.exercise = exercise;
            row.spot = spot;
            row.question = i;
            row.rows = 1;
            row.right = i < right;
            row.milliseconds = 9000 + 700 * i;
            log->add(row);
        }
    };
    for (int week = 0; week < 8; ++week) {
        answer(ExerciseType::hsiHolding, Text::spotEntryOffsetLeft, week * 7, 6, 5 - week / 2);
        answer(ExerciseType::qdm, Text::spotQdmTrend, week * 7 + 1, 8, 7 - week / 2);
    }
    return log;
}

struct PanelPicture {
    const char* name;
    void (*prepare)(Stage& stage);
    QRect (*part)(const Stage& stage);
};

constexpr QSize lowWindow{1024, 768}; ///< nothing keeps room there that it does not need

void flyToTheStation(Stage& stage, QSize size) {
    constexpr std::int16_t toTheStation = 115;
    stage.form.coupling.setHeadingBug(toTheStation);
    stage.fly(120);
    stage.show(size);
}

void fliesToTheStation(Stage& stage) {
    flyToTheStation(stage, {1280, 800});
}

void steersFromTheStrip(Stage& stage) {
    flyToTheStation(stage, lowWindow);
}

template <InstrumentKind kind>
void looksAtDial(Stage& stage) {
    stage.form.SelectInst3(static_cast<std::int16_t>(kind));
    fliesToTheStation(stage);
}

void replays(Stage& stage) {
    flyToTheStation(stage, lowWindow);
    stage.form.pages.replay.choose();
    stage.form.replayPage.bar.scrollTo(20);
    stage.settle();
}

void writesComments(Stage& stage) {
    fliesToTheStation(stage);
    stage.form.commentPanel.write.click();
    stage.settle();
}

void isAsked(Stage& stage) {
    stage.show();
    stage.form.exerciseMenu.exercises.front()->click();
    stage.settle();
}

/// The first question of QDM, flown after its solution was seen, and left again at its end.
void isDebriefed(Stage& stage) {
    Form1& form = stage.form;
    const auto item = std::ranges::find(exerciseItems(), ExerciseType::qdm, &ExerciseItem::type);
    form.exerciseMenu.exercises[static_cast<std::size_t>(item - exerciseItems().begin())]->click();
    ExercisePanel& panel = *form.QAform1.activePanel();
    for (CommandButton* button : {&panel.solutionButton, &panel.flyButton}) {
        button->click();
        form.Timer1();
    }
    for (const auto& [heading, seconds] :
         {std::pair<std::int16_t, int>{70, 132}, {120, 60}, {133, 60}}) {
        form.coupling.setHeadingBug(heading);
        stage.fly(seconds);
    }
    stage.show();
    form.debriefControls.item.click();
    stage.settle();
}

/// A shipped flight on a radial in the wind, with its comments.
void followsExample(Stage& stage) {
    constexpr std::size_t trackInWind = 4;
    stage.form.exerciseMenu.vorPractice[trackInWind]->click();
    stage.form.Timer1();
    stage.form.StopReplay();
    ReplayPage& replay = stage.form.replayPage;
    replay.bar.scrollTo(replay.bar.max() * 3 / 4);
    stage.show();
}

void looksBack(Stage& stage) {
    stage.form.training.useLog(
        [](TrainingDesk&) { return someAnswers(QDateTime::currentMSecsSinceEpoch()); });
    stage.show({960, 640});
    stage.form.exerciseMenu.progress.click();
    stage.settle();
}

template <class... Parts>
QRect placeOf(const Stage& stage) {
    return stage.placeOf<Parts...>();
}

QRect wholeWindow(const Stage& stage) {
    return stage.window->rect();
}

QRect rightDial(const Stage& stage) {
    const auto* dial = stage.window->findChild<QWidget*>(QStringLiteral("UserControl13_1"));
    return {dial->mapTo(stage.window.get(), QPoint()), dial->size()};
}

constexpr PanelPicture pictures[] = {
    {"chart", fliesToTheStation, placeOf<ChartView>},
    {"strip", steersFromTheStrip, placeOf<ControlStrip>},
    {"autopilot", fliesToTheStation, placeOf<AutopilotModule>},
    {"radios", fliesToTheStation, placeOf<NavModule, DmeModule>},
    {"stopwatch", fliesToTheStation, placeOf<StopwatchModule>},
    {"replay", replays, placeOf<ControlStrip>},
    {"comments", writesComments, placeOf<CommentCard>},
    {"rmi", looksAtDial<InstrumentKind::rmi>, rightDial},
    {"adf", looksAtDial<InstrumentKind::adf>, rightDial},
    {"hsi", looksAtDial<InstrumentKind::hsi>, rightDial},
    {"vor", looksAtDial<InstrumentKind::vor>, rightDial},
    {"dg", looksAtDial<InstrumentKind::dg>, rightDial},
    {"exercise", isAsked, placeOf<QuizPanel>},
    {"debrief", isDebriefed, placeOf<DebriefCard>},
    {"debrief_plot", isDebriefed, placeOf<DebriefPlot>},
    {"progress", looksBack, placeOf<ProgressPage>},
};

constexpr PanelPicture windows[] = {
    {"flight", followsExample, wholeWindow},
    {"exercise", isAsked, wholeWindow},
    {"debrief", isDebriefed, wholeWindow},
};

void paint(std::span<const PanelPicture> list, int widest, const StringTable& texts,
           const QString& folder) {
    for (const PanelPicture& picture : list) {
        Stage stage(texts);
        picture.prepare(stage);
        const QString file = QDir(folder).filePath(QStringLiteral("%1.png").arg(picture.name));
        const QRect part = picture.part(stage);
        QPixmap painted = stage.window->grab(part);
        if (part.width() > widest)
            painted = painted.scaledToWidth(widest, Qt::SmoothTransformation);
        if (part.isEmpty() || !painted.save(file))
            throw OutputError(file.toStdString(), "the picture can't be painted");
    }
}

} // namespace

void paintPanels(const StringTable& texts, const QString& folder) {
    constexpr int widest = 760; // pixels that the help's window has room for
    paint(pictures, widest, texts, folder);
}

void paintWindows(const StringTable& texts, const QString& folder) {
    paint(windows, std::numeric_limits<int>::max(), texts, folder);
}

} // namespace tarnel
