// The soak: the trainer in its window, under random hands, for many simulated hours. Called as
// soak_tarnel [HOURS [SEED]], best by soak/run.

#include "soak/checks.h"
#include "soak/errands.h"
#include "strings/string_table.h"
#include "support/temporary_folder.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <unistd.h>
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

using namespace tarnel;
namespace fs = std::filesystem;

constexpr double ticksPerHour = 3 * 3600;
/// Simulated hours until the program ends and starts in the other language.
constexpr double hoursOfProgram = 8;
/// What the floor may rise by from the first third of the hours to the last, and the hours before
/// that in which what the whole process needs is made.
constexpr std::int64_t mostBytes = 1 << 20;
constexpr int mostWidgets = 20;
constexpr int mostFiles = 2;
constexpr double hoursToWarmUp = 3;
/// Real seconds within which each errand has to end.
constexpr unsigned patience = 300;

/// For what breaks where nothing can be caught.
const SoakState* running = nullptr;
unsigned runningSeed = 0;
int complaints = 0;

void tellWhatLedToIt() {
    if (!running)
        return;
    std::fprintf(stderr, "Broken in hour %.2f with the seed %u.\n",
                 static_cast<double>(running->ticks) / ticksPerHour, runningSeed);
    running->trail.print();
    running = nullptr;
}

void breakOff(int /*signal*/) {
    tellWhatLedToIt();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

/// What Qt complains of counts as a fault, but for what its windowless platform lacks
/// and presses beside a menu.
void hearQt(QtMsgType type, const QMessageLogContext& /*where*/, const QString& message) {
    for (const char* known : {"This plugin does not support", "Mouse event at"})
        if (message.startsWith(QLatin1String(known)))
            return;
    std::fprintf(stderr, "Qt: %s\n", message.toUtf8().constData());
    if (type != QtDebugMsg && type != QtInfoMsg)
        ++complaints;
}

void watchForTheWorst() {
    qInstallMessageHandler(hearQt);
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(tellWhatLedToIt);
#endif
    std::signal(SIGABRT, breakOff);
    std::signal(SIGALRM, breakOff); // it does not answer
}

/// A home of its own, with files to be picked and courses of the user's own.
struct Home {
    Home() {
        fs::create_directory(files);
        fs::copy(TARNEL_SEEDS_FOLDER, files / "seeds", fs::copy_options::recursive);
        for (const auto& entry : fs::directory_iterator(TARNEL_APPLICATION_FOLDER))
            if (entry.path().filename() == "default")
                fs::copy(entry.path(), application / "default", fs::copy_options::recursive);
            else
                fs::create_directories(application),
                    fs::create_symlink(entry.path(), application / entry.path().filename());
        fs::copy(application / "default/sessions", files / "sessions");
        const fs::path courses = folder.at / ".local/share/tarnel/courses";
        fs::create_directories(courses / "Damaged");
        fs::copy(application / "default", courses / "Kurs & course 1", fs::copy_options::recursive);
        fs::copy(fs::path(TARNEL_SEEDS_FOLDER) / "study", courses / "Damaged/study",
                 fs::copy_options::recursive);
        const char* home = folder.path.c_str();
        setenv("HOME", home, 1);
        setenv("XDG_RUNTIME_DIR", home, 1);
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "FG_ROOT"})
            unsetenv(name);
        setenv("PATH", home, 1); // nothing is started
        setenv("TZ", "UTC", 1);
        setenv("QT_HASH_SEED", "0", 1);
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    }
    const TemporaryFolder folder;
    const fs::path files = folder.at / "files";
    const fs::path application = folder.at / "application";
};

class Soak {
  public:
    Soak(double soakHours, unsigned soakSeed, const Home& itsHome)
        : hours(soakHours), seed(soakSeed), home(itsHome), state(soakSeed) {}

    void run();
    /// 0 if the memory does not grow.
    int judge() const;

  private:
    [[nodiscard]] double hour() const { return static_cast<double>(state.ticks) / ticksPerHour; }
    void runProgram(const StringTable& texts, double until);
    void noteFloor(Program& program);
    void tellReach() const;
    [[nodiscard]] Floor rise(double from, double to) const;

    double hours;
    unsigned seed;
    const Home& home;
    SoakState state;
    std::vector<Floor> floors;
    double begin = 0; ///< of the program that runs, in hours
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

void Soak::run() {
    running = &state;
    runningSeed = seed;
    std::printf("%6s %7s %11s %11s %8s %8s %6s %6s %9s %7s %5s %6s\n", "hour", "deeds", "controls",
                "entries", "opened", "answered", "right", "boxes", "bytes", "widgets", "files",
                "real s");
    for (int i = 1; hour() < hours; ++i)
        runProgram(i % 2 == 0 ? germanTable() : englishTable(),
                   std::min(hours, hour() + std::min(hoursOfProgram, hours / 2)));
    running = nullptr;
    tellReach();
}

void Soak::runProgram(const StringTable& texts, double until) {
    const double step = std::min(1.0, hours / 6);
    begin = hour();
    Program program({texts, state, home.application.string(), home.files.string()});
    for (double next = hour(); hour() < until;) {
        alarm(patience);
        if (hour() >= next) {
            noteFloor(program);
            next += step;
        }
        doAnErrand(program, state);
        check(program.form, program.window);
    }
    if (hour() - floors.back().hour > step / 2)
        noteFloor(program);
    program.end();
}

/// At rest, with a new session, and with the first exercise left again.
void Soak::noteFloor(Program& program) {
    program.hand.lookAround();
    program.rest();
    program.window.setWindowState(Qt::WindowNoState);
    program.window.resize(1280, 800);
    program.form.guarded([&] { program.form.fileMenu.newSession.click(); });
    program.form.guarded([&] { program.form.exerciseMenu.exercises.front()->click(); });
    program.settle();
    if (!program.form.exercise.runs())
        throw Fault("the first exercise does not begin");
    program.rest();
    program.form.guarded([&] { program.form.fileMenu.newSession.click(); });
    program.settle();
    floors.push_back(takeFloor(hour(), hour() - begin));
    int boxes = 0;
    for (const auto& [text, times] : state.boxes)
        boxes += times;
    const Floor& floor = floors.back();
    const auto share = [](const Reach& reach) {
        return std::to_string(reach.all() - reach.never().size()) + "/" +
               std::to_string(reach.all());
    };
    const std::chrono::duration<double> real = std::chrono::steady_clock::now() - start;
    std::printf("%6.2f %7d %11s %11s %8d %8d %6d %6d %9lld %7d %5d %6.0f\n", floor.hour,
                state.trail.deeds(), share(state.controls).c_str(), share(state.entries).c_str(),
                state.opened, state.answered, state.right, boxes,
                static_cast<long long>(floor.bytes), floor.widgets, floor.files, real.count());
    std::fflush(stdout);
}

void Soak::tellReach() const {
    std::printf("Digest of the deeds: %08x\n", state.trail.digest());
    for (const auto& [text, times] : state.boxes)
        std::printf("box %5d x %.150s\n", times, text.c_str());
    for (const auto& [kind, reach] :
         {std::pair("Controls", &state.controls), std::pair("Entries", &state.entries)}) {
        std::printf("%s never reached:", kind);
        for (const std::string& name : reach->never())
            std::printf(" %s", name.c_str());
        std::printf("\n");
    }
}

/// What the lowest floor of the last third of the hours lies above that of the first third, among
/// programs that run for at least `from` hours and less than `to`.
Floor Soak::rise(double from, double to) const {
    std::vector<Floor> likes;
    for (const Floor& floor : floors)
        if (floor.hour > hoursToWarmUp && floor.age >= from && floor.age < to)
            likes.push_back(floor);
    const auto third = static_cast<std::ptrdiff_t>(likes.size() / 3);
    const auto rise = [&](auto member) {
        const auto lowest = [member](auto first, auto last) {
            return std::ranges::min(std::ranges::subrange(first, last), {}, member).*member;
        };
        return third == 0 ? 0
                          : lowest(likes.end() - third, likes.end()) -
                                lowest(likes.begin(), likes.begin() + third);
    };
    return {.bytes = rise(&Floor::bytes),
            .widgets = static_cast<int>(rise(&Floor::widgets)),
            .files = static_cast<int>(rise(&Floor::files))};
}

int Soak::judge() const {
    constexpr double begun = 0.5;
    constexpr double used = 2;
    bool grows = false;
    for (const auto& [of, risen] : {std::pair("programs that have just begun", rise(0, begun)),
                                    std::pair("programs in use", rise(used, hoursOfProgram + 1))}) {
        std::printf("The floor of %s rose by %lld bytes, %d widgets, %d open files\n", of,
                    static_cast<long long>(risen.bytes), risen.widgets, risen.files);
        grows = grows || risen.bytes > mostBytes || risen.widgets > mostWidgets ||
                risen.files > mostFiles;
    }
    if (complaints > 0)
        std::printf("Qt complained %d times\n", complaints);
    return grows || complaints > 0 ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    const double hours = argc > 1 ? std::atof(argv[1]) : 100;
    const auto seed = static_cast<unsigned>(argc > 2 ? std::atoi(argv[2]) : 1);
    const Home home;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarnel"));
    watchForTheWorst();
    Soak soak(hours, seed, home);
    try {
        soak.run();
        return soak.judge();
    } catch (const Fault& fault) {
        std::fprintf(stderr, "%s\n", fault.what());
        tellWhatLedToIt();
        return 1;
    }
}
