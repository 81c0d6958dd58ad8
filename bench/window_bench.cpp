#include "cpu_seconds.h"
#include "shell/application_folder.h"
#include "shell/form_1.h"
#include "silent_world.h"
#include "strings/string_table.h"
#include "window/frame/main_window.h"
#include "window/frame/qt_outside_world.h"
#include "window/widgets/dressing.h"
#include "window/widgets/replay_bar.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QMouseEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

// Each measurement is a process of its own: this program runs itself with the name of one.

namespace {

using namespace tarnel;

constexpr int warmUpMilliseconds = 1000;
constexpr int measuredMilliseconds = 4000;
constexpr int pairs = 5;

/// Twips per NM.
constexpr std::int16_t usualScale = 250;
constexpr std::int16_t largestScale = 1000;

/// Runs the event loop and prints the share of a core that it takes once it has settled.
int printCpuShare() {
    double start = 0;
    QElapsedTimer clock;
    QTimer::singleShot(warmUpMilliseconds, [&] {
        start = cpuSeconds();
        clock.start();
        QTimer::singleShot(measuredMilliseconds, [&] {
            const double elapsed = static_cast<double>(clock.nsecsElapsed()) * 1e-9;
            std::printf("%.6f\n", (cpuSeconds() - start) / elapsed);
            QCoreApplication::quit();
        });
    });
    return QApplication::exec();
}

/// A program that does nothing a thousand times a second.
int emptyTimer() {
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [] {});
    timer.start(1);
    QMainWindow window;
    window.resize(1280, 800);
    window.show();
    return printCpuShare();
}

int trainer(const std::function<void(Form1&)>& prepare) {
    const QTemporaryDir scratch;
    QtOutsideWorld outside(englishTable(),
                           scratch.filePath(QStringLiteral("settings.ini")).toStdString());
    dressApplication(englishTable(), QString::fromStdString(applicationFolder()));
    Form1 form(englishTable(), outside, applicationFolder());
    MainWindow window(form);
    window.resize(1280, 800);
    window.show();
    prepare(form);
    window.startTimers();
    return printCpuShare();
}

void flyHeadingUp(Form1& form) {
    form.display.setNorthUp(false);
    form.rateQuadruple.click();
    form.startButton.click();
    form.coupling.setHeadingBug(170);
}

/// Records a long flight in circles, nearly as many samples as there is room for.
void recordLongFlight(Form1& form) {
    constexpr int samples = 5970;
    constexpr int ticksPerSample = 4;
    UserControl2& sim = form.UserControl11;
    sim.c_TimerEN = 1;
    sim.Turn_Rate = 1;
    sim.c_TAS = 120;
    for (int i = 0; i < samples * ticksPerSample; ++i)
        sim.Timer1();
    sim.c_TimerEN = 0;
    form.Timer1();
}

/// A window with a long recording and its trace on the chart.
class ReplayedFlight {
  public:
    ReplayedFlight(std::int16_t scale, bool northUp) {
        dressApplication(englishTable(), QString::fromStdString(applicationFolder()));
        recordLongFlight(form);
        form.display.setScale(scale);
        form.display.setNorthUp(northUp);
        window.emplace(form);
        window->resize(1280, 800);
        window->show();
        QCoreApplication::processEvents();
    }

    /// Drags the bar by the mouse, 60 times a second, from its beginning to its end.
    int drag() {
        auto* bar = window->findChild<ReplayBar*>(QStringLiteral("HScroll1"));
        const auto send = [bar](QEvent::Type type, double share) {
            const QPointF at(share * bar->width(), bar->height() / 2.0);
            QMouseEvent event(type, at, bar->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(bar, &event);
        };
        window->startTimers();
        send(QEvent::MouseButtonPress, 0);
        QTimer hand;
        hand.setTimerType(Qt::PreciseTimer);
        int moves = 0;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            send(QEvent::MouseMove, ++moves * handMilliseconds / allMilliseconds);
        });
        hand.start(handMilliseconds);
        return printCpuShare();
    }

    /// Prints the milliseconds that a step of the bar takes with its repaint.
    int step() {
        constexpr int steps = 300;
        const int last = form.replayPage.bar.max();
        const double start = cpuSeconds();
        for (int i = 1; i <= steps; ++i) {
            form.replayPage.bar.scrollTo(i * last / steps);
            form.Timer1();
            window->refresh();
            QCoreApplication::processEvents();
        }
        std::printf("%.6f\n", (cpuSeconds() - start) / steps * 1e3);
        return 0;
    }

  private:
    static constexpr int handMilliseconds = 1000 / 60;
    static constexpr double allMilliseconds = warmUpMilliseconds + measuredMilliseconds;

    SilentWorld outside;
    Form1 form{englishTable(), outside, applicationFolder()};
    std::optional<MainWindow> window;
};

/// Prints the milliseconds from the start of main to the first painted window, and before them
/// those to the end of each stage on the way.
class FirstPaint {
  public:
    explicit FirstPaint(const QElapsedTimer& start) : started(start) { stageEnds(); }
    ~FirstPaint() {
        QCoreApplication::processEvents();
        stageEnds();
        std::printf("\n");
    }
    FirstPaint(const FirstPaint&) = delete;
    FirstPaint& operator=(const FirstPaint&) = delete;
    void stageEnds() const {
        std::printf("%.3f ", static_cast<double>(started.nsecsElapsed()) * 1e-6);
    }

  private:
    const QElapsedTimer& started;
};

int emptyPaint(const QElapsedTimer& started) {
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("Tarnel"), &window));
    window.resize(1280, 800);
    const FirstPaint paint(started);
    window.show();
    return 0;
}

constexpr const char* paintStages[] = {
    "application", "settings and style", "trainer without a window", "window", "shown", "painted"};

int trainerPaint(const QElapsedTimer& started) {
    const QTemporaryDir scratch;
    std::optional<Form1> form;
    std::optional<MainWindow> window;
    std::optional<QtOutsideWorld> outside;
    {
        const FirstPaint paint(started);
        outside.emplace(englishTable(),
                        scratch.filePath(QStringLiteral("settings.ini")).toStdString());
        const std::string folder = applicationFolder();
        dressApplication(englishTable(), QString::fromStdString(folder));
        paint.stageEnds();
        form.emplace(englishTable(), *outside, folder);
        paint.stageEnds();
        window.emplace(*form);
        paint.stageEnds();
        window->resize(1280, 800);
        window->show();
        paint.stageEnds();
    }
    window.reset();
    form.reset();
    return 0;
}

/// The numbers that this program prints for a measurement, with what it is for as the last.
std::vector<double> measured(const char* what) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(what)});
    process.waitForFinished(60'000);
    std::vector<double> numbers;
    for (const QByteArray& number : process.readAllStandardOutput().simplified().split(' '))
        numbers.push_back(number.toDouble());
    return numbers;
}

double measure(const char* what) {
    return measured(what).back();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Measures two things in turn and prints the median of their ratios.
bool compare(const char* title, const char* measured, const char* against, double most) {
    std::vector<double> ratios;
    std::vector<double> firsts;
    std::vector<double> seconds;
    for (int i = 0; i < pairs; ++i) {
        firsts.push_back(measure(measured));
        seconds.push_back(measure(against));
        ratios.push_back(firsts.back() / seconds.back());
    }
    const double ratio = median(ratios);
    std::printf("%-44s %10.4f %10.4f %8.2f %8.2f %s\n", title, median(firsts), median(seconds),
                ratio, most, ratio <= most ? "" : "MISSED");
    return ratio <= most;
}

/// Measures a share of a core and prints the median.
bool limit(const char* title, const char* measured, double most) {
    std::vector<double> shares;
    for (int i = 0; i < pairs; ++i)
        shares.push_back(measure(measured));
    const double share = median(shares);
    std::printf("%-44s %10.4f %10s %8s %8.2f %s\n", title, share, "", "", most,
                share <= most ? "" : "MISSED");
    return share <= most;
}

/// Prints how long each stage on the way to the first paint takes.
void printPaintStages() {
    std::vector<std::vector<double>> runs;
    for (int i = 0; i < pairs; ++i)
        runs.push_back(measured("paint"));
    std::printf("\n%-44s %10s\n", "stages on the way to the first paint", "ms");
    for (std::size_t stage = 0; stage < std::size(paintStages); ++stage) {
        std::vector<double> taken;
        for (const std::vector<double>& ends : runs)
            taken.push_back(ends.at(stage) - (stage > 0 ? ends.at(stage - 1) : 0));
        std::printf("%-44s %10.3f\n", paintStages[stage], median(taken));
    }
}

int compareAll() {
    constexpr double mostInFlight = 0.05;
    constexpr double mostWhileDragging = 0.10;
    std::printf("%-44s %10s %10s %8s %8s\n", "measured against an empty program", "", "against",
                "ratio", "at most");
    bool met = compare("share of a core at rest", "rest", "empty", 0.1);
    met = compare("first paint, ms", "paint", "empty-paint", 10) && met;
    met = limit("share of a core, x 4, heading up, 1280 x 800", "fly", mostInFlight) && met;
    met = limit("bar dragged 60 times a second, north up", "drag", mostWhileDragging) && met;
    met = limit("the same at the largest scale", "drag-near", mostWhileDragging) && met;
    met = limit("the same heading up", "drag-heading-up", mostWhileDragging) && met;
    std::printf("%-44s %10.4f\n", "a step of the bar with its repaint, ms", measure("step"));
    std::printf("%-44s %10.4f\n", "the same heading up, ms", measure("step-heading-up"));
    printPaintStages();
    return met ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    QElapsedTimer started;
    started.start();
    QApplication application(argc, argv);
    const QString mode = argc > 1 ? QString::fromLatin1(argv[1]) : QString();
    if (mode == "empty")
        return emptyTimer();
    if (mode == "rest")
        return trainer([](Form1&) {});
    if (mode == "fly")
        return trainer(flyHeadingUp);
    if (mode == "empty-paint")
        return emptyPaint(started);
    if (mode == "paint")
        return trainerPaint(started);
    if (mode == "drag")
        return ReplayedFlight(usualScale, true).drag();
    if (mode == "drag-near")
        return ReplayedFlight(largestScale, true).drag();
    if (mode == "drag-heading-up")
        return ReplayedFlight(usualScale, false).drag();
    if (mode == "step")
        return ReplayedFlight(usualScale, true).step();
    if (mode == "step-heading-up")
        return ReplayedFlight(usualScale, false).step();
    return compareAll();
}
