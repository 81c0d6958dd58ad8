#include "window/frame/main_window.h"

#include "look/look.h"
#include "paper/plates.h"
#include "shell/exercise_exit.h"
#include "shell/finding_text.h"
#include "window/access/install.h"
#include "window/chart/chart_controls.h"
#include "window/chart/chart_finder_dialog.h"
#include "window/chart/chart_keyboard.h"
#include "window/chart/chart_view.h"
#include "window/chart/comment_card.h"
#include "window/chart/station_editing.h"
#include "window/debrief/debrief_card.h"
#include "window/debrief/debrief_layer.h"
#include "window/debrief/debrief_page.h"
#include "window/debrief/debrief_plot.h"
#include "window/dials/floating_gyro.h"
#include "window/frame/file_opener.h"
#include "window/frame/flight_signs.h"
#include "window/frame/help_key.h"
#include "window/frame/instrument_panel.h"
#include "window/frame/key_list.h"
#include "window/frame/menu_tree.h"
#include "window/frame/pdf_form_window.h"
#include "window/frame/status_panels.h"
#include "window/frame/window_keys.h"
#include "window/progress/progress_page.h"
#include "window/quiz/quiz_panel.h"
#include "window/strip/control_strip.h"
#include "window/widgets/dressing.h"
#include "window/widgets/help_page.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/quiet_key.h"
#include "window/widgets/style_sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>

namespace tarnel {

namespace {

constexpr int autopilotMilliseconds = 200;
constexpr int blinkMilliseconds = 500;
/// A screen of 960 x 540 less the desktop's own bars.
constexpr QSize smallestWindow{940, 480};
constexpr QSize usualWindow{1280, 800};

} // namespace

MainWindow::MainWindow(Form1& owner)
    : form(owner),
      guard([&owner](const std::function<void()>& action) { owner.guarded(action); }),
      binding(owner.texts, owner.state, guard),
      pictures(QString::fromStdString(owner.UserControl11.c_MainAppPath.get())),
      pulse([this] { beat(); }) {
    installAccessibility(form.texts);
    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(textOf(form.texts, Text::windowTitle));
    setContextMenuPolicy(Qt::NoContextMenu);
    setMinimumSize(smallestWindow);
    pictures.onMissing = [this](const QString& name) {
        QTimer::singleShot(0, this,
                           [this, name] { form.boxes.pictureMissing(name.toStdString()); });
    };
    makeNewChart();
    makeDesk();
    makeMenus();
    giveLetters();
    opener = new FileOpener(form.files, form.boxes, *this);
    flightSigns = new FlightSigns(form.flightDesk, form.flight, form.exercise, form.UserControl11,
                                  form.boxes, *this);
    form.beforeBox = [this] { refresh(); };
    followDesktop(*this, [this] {
        setStyleSheet(sheetFor(shownScale)); // once for all widgets
        if (isVisible())
            layOut();
    });
    resize(usualWindow);

    simulationTimer.setTimerType(Qt::PreciseTimer);
    connect(&simulationTimer, &QTimer::timeout, this, [this] { form.simulationTimer(); });
    replayTimer.setTimerType(Qt::PreciseTimer);
    connect(&replayTimer, &QTimer::timeout, this, [this] { form.Timer2(); });
    connect(&autopilotTimer, &QTimer::timeout, this, [this] { form.autopilotTimer(); });
    connect(&blinkTimer, &QTimer::timeout, this, [this] { form.blinkTimer(); });
}

MainWindow::~MainWindow() {
    form.beforeBox = nullptr;
}

void MainWindow::makeMenus() {
    fullScreen = fullScreenAction(*this, form.texts);
    addWindowKeys(*this, form.texts, [this] { form.guarded([this] { stepOut(); }); });
    buildMenus(*menuBar(),
               {.controls = form,
                .floatingGyroBox = form.floatingGyroBox,
                .history = form.UserControl11.history,
                .display = form.display,
                .flights = form.flightDesk,
                .files = form.files,
                .recentFiles = form.recentFiles,
                .debrief = form.debriefControls,
                .courses = form.courses,
                .documents = form.documents,
                .boxes = form.boxes,
                .pressKey = [this](char letter) { form.pressKey(letter); },
                .placeByKeys = *chart->keyboard().place,
                .turnByKeys = *chart->keyboard().turn,
                .fullScreen = *fullScreen,
                .help = [this] { openHelp(); },
                .keys =
                    [this] {
                        auto* list = new KeyList(*this, form.texts);
                        list->setAttribute(Qt::WA_DeleteOnClose);
                        list->show();
                    },
                .exit = [this] { close(); }},
               binding);
}

void MainWindow::makeNewChart() {
    form.fileMenu.newChart.onClick = [this] {
        form.boxes.pause();
        auto* dialog =
            new ChartFinderDialog(form.UserControl11, form.boxes, form.boxes.navFolders(), this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    };
}

StripModel MainWindow::stripModel() {
    return {.controls = form,
            .floatingGyroBox = form.floatingGyroBox,
            .sim = form.UserControl11,
            .flight = form.flight,
            .display = form.display,
            .wind = form.windDesk,
            .boxes = form.boxes};
}

InstrumentPanelModel MainWindow::panelModel() {
    return {.controls = form,
            .positions = form.positions,
            .sim = form.UserControl11,
            .exercise = form.exercise,
            .boxes = form.boxes};
}

QuizModel MainWindow::quizModel() {
    return {.controls = form,
            .exercises = form.QAform1,
            .exercise = form.exercise,
            .flight = form.flight,
            .texts = form.texts};
}

DebriefModel MainWindow::debriefModel() {
    return {.desk = form.debrief,
            .controls = form.debriefControls,
            .trainer = form,
            .sim = form.UserControl11,
            .replay = form.replay,
            .boxes = form.boxes};
}

void MainWindow::makeDesk() {
    desk = new QWidget(this);
    desk->setObjectName(QStringLiteral("Desk"));
    setCentralWidget(desk);
    chart = new ChartView(form.UserControl11, form.texts, desk);
    chart->guard = guard;
    chart->onZoom = [this](int steps) { form.guarded([&] { form.display.stepScale(steps); }); };
    stationEditing =
        std::make_unique<StationEditing>(form.stationDesk, form.stationPage, form.boxes, *chart);
    chartControls = new ChartControls(form.display, form.boxes, chart);
    strip = new ControlStrip(stripModel(), binding, desk);
    comment = new CommentCard(form.commentPanel, form.practicePanel, form.UserControl11.comments,
                              form.boxes, binding, desk);
    // In the order in which Tab goes: what stands below the chart comes before the panel beside it.
    quiz = new QuizPanel(quizModel(), binding, desk);
    debriefCard = new DebriefCard(debriefModel(), binding, desk);
    panel = new InstrumentPanel(panelModel(), binding, pictures, guard, desk);
    status = new StatusPanels(form, form.flightDesk.notice, binding, desk);
    makeProgress();
    debriefPlot = new DebriefPlot(debriefModel(), binding, pictures, guard, panel);
    debriefPlot->hide();
    chart->setLayer(std::make_unique<DebriefLayer>(debriefModel()));
    connectExports(debriefModel());
    debriefCard->onFlyAgain = [this] { beforeDebrief = nullptr; };
    gyro = new additional_DG(form, form.exercise, form.boxes, pictures, this);
    bookForm = new PdfFormWindow(form.documents.bookForm, form.boxes, binding, *this);
    chartForm = new PdfFormWindow(form.documents.chartForm, form.boxes, binding, *this);
    makeHelpPages();
}

/// Parts within these may have pages of their own.
void MainWindow::makeHelpPages() {
    setHelpPage(*chart, "chart");
    setHelpPage(*strip, "flight");
    setHelpPage(*comment, "comments");
    setHelpPage(*panel, "instruments");
    setHelpPage(*gyro, "instruments");
    setHelpPage(*quiz, "exercises");
    setHelpPage(*debriefCard, "debrief");
    setHelpPage(*debriefPlot, "debrief");
    new HelpKey(*this,
                [this](const QString& page) { form.documents.openHelp(page.toStdString()); });
}

/// Letters for Alt. Strip and quiz are never up together; of the strip's pages one is.
void MainWindow::giveLetters() {
    const QString taken = mnemonicsOf(*menuBar());
    giveMnemonics(*strip, taken);
    quiz->giveLetters(taken);
    giveMnemonics(*debriefPlot, giveMnemonics(*debriefCard, taken));
}

/// Out of what is up, the innermost first.
void MainWindow::stepOut() {
    UserControl2& sim = form.UserControl11;
    if (form.debrief.isOpen())
        form.debriefControls.close.click();
    else if (sim.mouse.windTool())
        sim.mouse.cancel();
    else if (form.stationPage.edit.value() == 1)
        form.stationPage.edit.click();
    else if (!::tarnel::stepOut(form.QAform1, form.exercise, form.backButton, form.boxes) &&
             isFullScreen())
        fullScreen->trigger();
}

/// Where nothing has the keyboard, the page is that of what has come over the desk.
void MainWindow::openHelp() {
    QString page = helpPageOf(QApplication::focusWidget());
    for (const QWidget* part : std::initializer_list<const QWidget*>{progress, debriefCard, quiz})
        if (page.isEmpty() && part && part->isVisible())
            page = helpPageOf(part);
    form.documents.openHelp(page.toStdString());
}

/// The page is made when it is first asked for, and covers all but the status bar.
void MainWindow::makeProgress() {
    form.exerciseMenu.progress.onClick = [this] {
        if (!progress) {
            progress = new ProgressPage(
                {.training = form.training,
                 .boxes = form.boxes,
                 .texts = form.texts,
                 .sentence =
                     [this](const Finding& finding) { return findingText(finding, form.texts); },
                 .openFlights =
                     [this](const std::vector<std::int64_t>& flights) {
                         return form.flightLog.open(flights);
                     }},
                desk);
            setHelpPage(*progress, "progress");
            giveMnemonics(*progress, mnemonicsOf(*menuBar()));
            progress->onClose = [this] { coverDesk(false); };
            layOut();
        }
        form.boxes.pause();
        coverDesk(true);
        progress->open();
    };
}

/// What is covered must not have the keyboard.
void MainWindow::coverDesk(bool covered) {
    for (QWidget* part : std::initializer_list<QWidget*>{chart, strip, comment, quiz, panel})
        part->setEnabled(!covered);
}

void MainWindow::openFile(const std::string& path) {
    opener->open(path);
}

void MainWindow::startTimers() {
    pulse.start();
}

PanelSizes MainWindow::panelSizes() const {
    return {form.inst2.instrument.c_Large == 1, form.inst3.instrument.c_Large == 1};
}

/// The quiz takes the strip's place, and while a question stands open the comment's too. A debrief
/// takes the place of all of them.
ColumnWishes MainWindow::columnWishes() const {
    if (form.debrief.isOpen())
        return {[this](int width) { return debriefCard->wantedHeight(width); },
                [this](int width) { return debriefCard->leastHeight(width); },
                [](int) { return 0; }, [](int) { return 0; }};
    return {[this](int width) {
                return quiz->runs() ? quiz->wantedHeight(width) : strip->wantedHeight(width);
            },
            [this](int width) {
                return quiz->runs() ? quiz->wantedHeight(width) : strip->leastHeight(width);
            },
            [this](int width) { return comment->wantedHeight(width); },
            [this](int width) {
                return form.exercise.questionOpen() ? 0 : comment->leastHeight(width);
            }};
}

void MainWindow::layOut() {
    const int barHeight =
        static_cast<int>(look::statusHeight * shownScale) * status->linesAt(desk->width());
    const QSize body(desk->width(), desk->height() - barHeight);
    const WindowLayout layout =
        layOutWindow(body, panelSizes(), columnWishes(), desktopTextScale());
    if (layout.uiScale != shownScale) {
        shownScale = layout.uiScale;
        setStyleSheet(sheetFor(shownScale));
        QTimer::singleShot(0, this, &MainWindow::layOut);
    }
    shownSizes = panelSizes();
    shownComments = comment->contents();
    shownQuiz = quiz->contents();
    shownOpen = form.exercise.questionOpen();
    shownDebrief = form.debrief.isOpen();
    chart->setGeometry(layout.chart);
    const int inset = overlayInset;
    chartControls->setGeometry(inset, inset, layout.chart.width() - 2 * inset,
                               chartControls->sizeHint().height());
    strip->setGeometry(layout.strip);
    strip->setVisible(!quiz->runs() && !shownDebrief);
    quiz->setGeometry(layout.strip);
    quiz->setVisible(quiz->runs() && !shownDebrief);
    comment->setGeometry(layout.comment);
    comment->setVisible(!layout.comment.isEmpty());
    panel->setGeometry(layout.panel);
    panel->layOut(layout);
    layOutDebrief(layout);
    status->setGeometry(0, body.height(), desk->width(), barHeight);
    if (progress)
        progress->setGeometry(0, 0, desk->width(), body.height());
    pictures.sizesChanged();
}

/// The findings stand where quiz and strip do, the plot where the modules do.
void MainWindow::layOutDebrief(const WindowLayout& layout) {
    debriefCard->setGeometry(layout.strip);
    debriefCard->setVisible(shownDebrief);
    debriefPlot->setScale(layout.panelScale);
    debriefPlot->setGeometry(layout.nav1.united(layout.autopilot));
    debriefPlot->setVisible(shownDebrief);
    panel->showModules(!shownDebrief);
}

/// What had the keyboard before the debrief gets it back.
void MainWindow::followDebrief() {
    debriefCard->refresh();
    if (form.debrief.isOpen() == shownDebrief) {
        if (!shownDebrief)
            beforeDebrief = focusWidget();
        return;
    }
    layOut();
    if (shownDebrief)
        debriefCard->takeKeyboard();
    else if (beforeDebrief && beforeDebrief->isVisible())
        beforeDebrief->setFocus(Qt::OtherFocusReason);
    else
        focusStart();
}

/// Strip and quiz each have a button that starts.
void MainWindow::focusStart() {
    const std::string name(form.startButton.name());
    for (auto* start : findChildren<QAbstractButton*>(QString::fromStdString(name)))
        if (start->isVisible())
            start->setFocus(Qt::OtherFocusReason);
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    layOut();
}

/// What nothing else takes may mean something to the debrief or the exercise.
void MainWindow::keyPressEvent(QKeyEvent* event) {
    if ((form.debrief.isOpen() || !quiz->takeKey(*event)) && !takeQuietKey(*this, *event))
        QMainWindow::keyPressEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    form.guarded([this] { form.StopFly(); });
    if (!form.flightDesk.mayClose()) {
        event->ignore();
        return;
    }
    event->accept();
    if (onClose)
        onClose();
    QCoreApplication::quit();
}

void MainWindow::follow(QTimer& timer, bool runs, int interval) {
    if (timer.interval() != interval)
        timer.setInterval(interval);
    if (runs != timer.isActive())
        runs ? timer.start() : timer.stop();
}

/// Both intervals follow the rate that was chosen; each timer runs while what it moves does.
void MainWindow::followClocks() {
    const int interval = form.UserControl11.c_TimerSIMrate;
    follow(simulationTimer, form.UserControl11.c_TimerEN == 1, interval);
    follow(replayTimer, form.replay.runs(), interval);
    follow(autopilotTimer, form.APControlFace1.drives(), autopilotMilliseconds);
    follow(blinkTimer, form.markBlinks(), blinkMilliseconds);
}

void MainWindow::beat() {
    for (int i = 0; i < CouplingPulse::ticks; ++i)
        form.Timer1();
    followClocks();
    refresh();
}

void MainWindow::refresh() {
    binding.refresh();
    comment->refresh();
    quiz->refresh();
    followDebrief();
    // Without a quiz the keyboard would be with whatever comes next in the window.
    if (shownQuiz != 0 && !quiz->runs() && focusWidget())
        focusWidget()->clearFocus();
    if (panelSizes() != shownSizes || form.exercise.questionOpen() != shownOpen ||
        comment->contents() != shownComments || quiz->contents() != shownQuiz)
        layOut();
    chart->refresh();
    chartControls->refresh();
    strip->refresh();
    panel->refresh();
    debriefPlot->refresh();
    gyro->refresh();
    bookForm->refresh();
    chartForm->refresh();
    flightSigns->refresh();
}

} // namespace tarnel
