#include "exercises/statistics.h"
#include "support/sample_chart.h"
#include "support/sample_session.h"
#include "window/frame/file_settings.h"
#include "window/student_fixture.h"

#include <QTemporaryDir>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>

namespace tarnel {
namespace {

#ifdef __OPTIMIZE__
constexpr double mostSeconds = 0.5;
#else
constexpr double mostSeconds = 3; // of a build in which nothing is optimised
#endif
#ifdef __SANITIZE_ADDRESS__
constexpr long mostMegabytes = 4096; // it keeps freed memory
#else
constexpr long mostMegabytes = 256;
#endif

std::string repeated(const std::string& part, std::size_t count) {
    std::string text;
    while (count-- > 0)
        text += part;
    return text;
}

/// The memory that the program held at most since `forgetPeak`.
long peakMegabytes() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with("VmHWM:"))
            return std::stol(line.substr(6)) / 1024;
    return 0;
}

void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

/// The window with the worst files of each kind. What a user waits for is the opening and the first
/// picture behind it.
class WorstFilesTest : public Student {
  protected:
    std::string write(const std::string& name, const std::string& bytes) const {
        const std::string path = folder.filePath(QString::fromStdString(name)).toStdString();
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
        return path;
    }
    void expectQuick(const std::string& what, const std::function<void()>& action) {
        forgetPeak();
        const std::clock_t before = std::clock();
        action();
        settle();
        window->grab();
        const double seconds = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
        EXPECT_LT(seconds, mostSeconds) << what;
        EXPECT_LT(peakMegabytes(), mostMegabytes) << what;
        std::printf("%-40s %5.0f ms %4ld MB\n", what.c_str(), seconds * 1000, peakMegabytes());
    }
    void expectQuickToOpen(const std::string& name, const std::string& bytes, bool good) {
        const std::string path = write(name, bytes);
        world.boxes.clear();
        expectQuick(name, [&] { window->openFile(path); });
        EXPECT_EQ(world.boxes.empty(), good) << name;
    }

    QTemporaryDir folder;
};

/// A session of 6,000 samples all over the world, with a comment at each, as long as may be.
std::string longestSession() {
    std::string text = repeated(":c:" + repeated("W", 4000) + "\n", 101);
    const auto head = sessionHeadLines();
    for (std::size_t i = 2; i < head.size(); ++i)
        text +=
            head[i].starts_with(":v1id") ? ":v1id:," + repeated("W", 40) + "\n" : head[i] + "\n";
    auto sample = sampleLines();
    for (int i = 0; i < 6000; ++i) {
        sample[0] = std::to_string(i * 7 % 178 - 89);
        sample[1] = std::to_string(i * 13 % 720 - 360);
        sample[39] = std::to_string(i % 101);
        text += joinLines(sample, sample.size(), "\n");
    }
    return text;
}

TEST_F(WorstFilesTest, OfChartsAndSessionsFreezeNothing) {
    open();
    const auto filled = [](const std::string& start, const std::string& part, std::size_t size) {
        return start + repeated(part, (size - start.size()) / part.size());
    };
    constexpr std::size_t session = std::size_t{8} << 20;
    constexpr std::size_t chart = std::size_t{1} << 20;
    const auto head = sessionHeadLines();
    const std::string start = joinLines(head, head.size());
    const std::string enciphered = std::string(54, '*') + "\n\n\n7\n";
    const std::tuple<const char*, std::string, std::string, std::size_t> wrong[] = {
        {"one comment.ts", ":c:", "W", session},
        {"one comment 2.ts", ":c:", "\xFC", session},
        {"enciphered.ts", enciphered, "\xFF", session},
        {"enciphered lines.ts", enciphered, "\n", session},
        {"lines.ts", "", "\n", session},
        {"comments.ts", "", ":c:\n", session},
        {"digits.ts", start, "9", session},
        {"blanks.ts", start, " ", session},
        {"name.map", ":v1id:,", "W", chart}};
    for (const auto& [name, front, part, size] : wrong)
        expectQuickToOpen(name, filled(front, part, size), false);
    expectQuickToOpen("digits.map", chartWith(18, std::string(chart / 2, '4')), false);
    expectQuickToOpen("names.map", chartWith(1, ":v1id:," + repeated("W", 40)), true);
    expectQuickToOpen("edge.map", chartWith(22, "89"), true);
    expectQuickToOpen("longest.ts", longestSession(), true);
    expectQuick("replay of the longest", [&] { form->replayPage.bar.scrollTo(3000); });
    expectQuick("heading up over the longest", [&] { form->display.setNorthUp(false); });
    const auto lines = sessionLines(6000);
    const std::string older = write(
        "older.ts", ":c:" + std::string(4000, 'W') +
                        "\n:n1:,1\n:n2:,0\n:n3:,1\n:n4:,1\n:n1:,1\n"
                        ":mc:,1\n" +
                        joinLines(std::vector(lines.begin() + 19, lines.end()), lines.size() - 19));
    expectQuick("older.ts", [&] {
        form->UserControl11.c_SessionFileName = older;
        form->UserControl11.c_LoadOLDSession = 2;
    });
    EXPECT_TRUE(world.boxes.empty());
}

TEST_F(WorstFilesTest, OfExercisesAndSettingsFreezeNothing) {
    const std::string text = repeated("W", 3990);
    std::string study;
    while (study.size() + 8 * text.size() < std::size_t{1} << 20)
        for (const char* tag : {":qa:,", ":qb:,", ":qc:,", ":a1:,", ":a2:,", ":a3:,", ":s:,", ""})
            study += tag + text + "\n";
    write("default/study/e-hsi.sty", study);
    write("default/study/e-stdvor.sty", ":qa:," + repeated("W", 1 << 20));
    std::string settings = "[qxr1]\n";
    for (int i = 0; settings.size() < (std::size_t{1} << 20) - 40; ++i)
        settings += "stats\\hsipos_total%20" + std::to_string(i) + "=1\n";
    FileSettings store(write("settings.ini", settings));
    form = std::make_unique<Form1>(englishTable(), world, folder.path().toStdString());
    window = std::make_unique<MainWindow>(*form);
    window->show();
    settle();
    expectQuick("longest questions", [&] { form->QAform1.c_QAtype = 1; });
    expectQuick("endless question", [&] { form->QAform1.c_QAtype = 2; });
    expectQuick("settings", [&] { Statistics(store).count("hsipos", 0, 300, true); });
}

} // namespace
} // namespace tarnel
