#include "cpu_seconds.h"
#include "debrief/debrief.h"
#include "persistence/file_bytes.h"
#include "persistence/sample_fields.h"
#include "persistence/save_file.h"
#include "persistence/session_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string_view>
#include <vector>

namespace {

using namespace tarnel;

constexpr int runs = 15;
constexpr int key = 7;

/// An hour's turning flight with the digits that a real one has.
SessionFile fullSession() {
    SessionFile session;
    session.comments = {"Downwind", "Base", "Final"};
    session.mapScaleTwips = 167;
    for (int i = 0; i < Recording::lastSample; ++i) {
        Sample sample;
        sample.traceLat = 48.3 + std::sin(i * 0.01) / 7;
        sample.traceLon = 11.6 + std::cos(i * 0.013) / 7;
        sample.traceHeading = std::fmod(i * 1.37, 360);
        sample.traceTAS = 120;
        sample.traceFlightMinutes = static_cast<std::int16_t>(i / 45 % 60);
        sample.traceStations = {{{48.1803, 11.816},
                                 {48.2634, 11.3119},
                                 {48.3743, 11.914},
                                 {48.355, 11.676},
                                 {48.4, 11.7}}};
        sample.traceObsI2 = std::fmod(i * 0.5, 360);
        sample.traceObsI3 = 83;
        sample.traceWindDirection = 270;
        sample.traceComment = static_cast<std::int16_t>(i % 4 - 1);
        session.samples.push_back(sample);
    }
    return session;
}

/// Splits lines and reads each as a number, no more.
double bareLoad(std::string_view text) {
    double sum = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1);
        double value = 0;
        std::from_chars(text.data(), text.data() + end, value);
        sum += value;
        text.remove_prefix(end + 1);
    }
    return sum;
}

/// Writes the same numbers into one buffer, one behind the other, and that into a file.
void bareSave(const SessionFile& session, const std::string& path) {
    constexpr std::size_t mostOfASample = 1024;
    std::string buffer(session.samples.size() * mostOfASample, '\0');
    char* at = buffer.data();
    char* const end = at + buffer.size();
    for (const Sample& sample : session.samples)
        visitFields(sample, [&](auto value, auto) {
            at = std::to_chars(at, end, value).ptr;
            *at++ = '\n';
        });
    std::ofstream(path, std::ios::binary).write(buffer.data(), at - buffer.data());
}

double medianSeconds(const std::function<void()>& work) {
    std::vector<double> seconds;
    for (int run = 0; run < runs; ++run) {
        const double start = cpuSeconds();
        work();
        seconds.push_back(cpuSeconds() - start);
    }
    std::ranges::sort(seconds);
    return seconds[runs / 2];
}

bool report(const char* what, double seconds, double against, double most) {
    const bool met = seconds <= most * against;
    std::printf("%-42s %7.2f ms, %5.2f times (at most %.1f) %s\n", what, seconds * 1e3,
                seconds / against, most, met ? "" : "MISSED");
    return met;
}

} // namespace

int main() {
    constexpr double mostOfBare = 3;
    constexpr double mostOfPlain = 1.5;
    const std::string folder = std::filesystem::temp_directory_path() / "tarnel_files_bench";
    std::filesystem::create_directories(folder);
    const std::string plain = folder + "/plain.ts";
    const std::string enciphered = folder + "/enciphered.ts";
    const SessionFile session = fullSession();
    const auto save = [&](const std::string& path, std::optional<int> fileKey) {
        saveFileBytes(path, writeSession(session, fileKey));
    };
    std::size_t read = 0;
    const auto load = [&](const std::string& path) {
        read += readSession(readFileBytes(path, largestSession)).samples.size();
    };
    save(plain, {});
    save(enciphered, key);
    const std::string text = readFileBytes(plain, largestSession);
    double sum = 0;

    std::printf("session of %zu samples, %zu bytes, CPU\n", session.samples.size(), text.size());
    const double bareLoading = medianSeconds([&] { sum += bareLoad(text); });
    const double loading = medianSeconds([&] { load(plain); });
    const double loadingEnciphered = medianSeconds([&] { load(enciphered); });
    const auto judging = [&](const Task& task) {
        return medianSeconds([&] {
            const Debrief told = judge(session.samples, task, Strictness::standard);
            sum += static_cast<double>(told.findings.size());
        });
    };
    const double line = judging(LineTask{.course = 90, .joins = true});
    const double holding = judging(HoldTask{.inbound = 90});
    const double arc = judging(ArcTask{.distance = 12, .final = 90});
    const double reference = judging(ReferenceTask{session.samples});
    const double bareSaving = medianSeconds([&] { bareSave(session, folder + "/bare"); });
    const double saving = medianSeconds([&] { save(plain, {}); });
    const double savingEnciphered = medianSeconds([&] { save(enciphered, key); });
    std::filesystem::remove_all(folder);

    bool met = std::isfinite(sum) && read == 2 * runs * session.samples.size();
    met =
        report("load, against a bare loop of from_chars", loading, bareLoading, mostOfBare) && met;
    met = report("judge a line, against loading", line, loading, 1) && met;
    met = report("judge a holding, against loading", holding, loading, 1) && met;
    met = report("judge an arc, against loading", arc, loading, 1) && met;
    met = report("judge beside a reference, against loading", reference, loading, 1) && met;
    met = report("save, against a bare loop of to_chars", saving, bareSaving, mostOfBare) && met;
    met = report("load enciphered, against plain", loadingEnciphered, loading, mostOfPlain) && met;
    met = report("save enciphered, against plain", savingEnciphered, saving, mostOfPlain) && met;
    return met ? 0 : 1;
}
