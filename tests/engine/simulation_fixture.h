#pragma once

#include "core/run_time_error.h"
#include "core/sailing.h"
#include "engine/user_control_2.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>
#include <vector>

namespace tarnel {

/// Keeps what the simulation says.
struct RecordedMessages : SimulationMessages {
    void bufferWarning(BufferWarning warning) override {
        warnings.emplace_back(sampleIndex ? sampleIndex() : 0, warning);
    }
    std::optional<std::string> chooseFile(FileRequest request, const std::string&) override {
        asked.push_back(request);
        return chosen;
    }
    bool isShipped(const std::string& path) const override {
        return path.find("/default/") != std::string::npos;
    }
    void stopForLoading(FileRequest, bool) override { ++stops; }
    void fileFailed(FileRequest, const std::string&, const RunTimeError& error) override {
        failures.push_back(error.number());
    }
    void fileWrong(FileRequest, const std::string&, const FileProblem& problem, bool) override {
        problems.push_back(problem);
    }

    std::function<int()> sampleIndex;
    std::vector<std::pair<int, BufferWarning>> warnings;
    std::vector<int> failures;
    std::vector<FileProblem> problems;
    std::vector<FileRequest> asked;
    std::optional<std::string> chosen; ///< what the next dialogs give
    int stops = 0;
};

/// A simulation on the default chart, aircraft at 49 north, 11 east.
class SimulationTest : public testing::Test {
  protected:
    static constexpr int minute = 180; ///< in ticks
    static constexpr int hour = 60 * minute;

    void tick(int ticks) {
        for (int i = 0; i < ticks; ++i)
            sim.Timer1();
    }
    void start(std::int16_t tas, double heading = 0) {
        sim.turnAircraft(heading);
        sim.c_TAS = tas;
        sim.c_TimerEN = 1;
    }
    [[nodiscard]] GeoPosition place() const { return sim.aircraft.published(); }
    [[nodiscard]] static double milesBetween(const GeoPosition& a, const GeoPosition& b) {
        return std::abs(CourseAndDistance(a, b).distance);
    }
    [[nodiscard]] const StationProperties& station(Slot which) const { return sim.slot(which); }

    /// The bearing of the aircraft from a station on the earth.
    [[nodiscard]] double trueRadial(Slot which) const {
        return CourseAndDistance(toPlain(inSlot(sim.stations, which).position), place()).course;
    }
    /// How far the published radials of VORs and NDBs are off the true ones, at worst. `turned`
    /// degrees are added to what is published.
    [[nodiscard]] double worstRadial(double turned) const {
        double worst = 0;
        for (const Slot which : {Slot::vor1, Slot::vor2, Slot::ndb1, Slot::ndb2})
            worst = std::max(worst, std::abs(std::remainder(
                                        station(which).radial + turned - trueRadial(which), 360)));
        return worst;
    }

    RecordedMessages messages;
    UserControl2 sim{messages};
};

} // namespace tarnel
