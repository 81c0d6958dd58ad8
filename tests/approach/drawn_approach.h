#pragma once

#include "approach/plan_framing.h"
#include "persistence/file_bytes.h"
#include "shell/documents.h"

#include <memory>
#include <string>

namespace tarnel {

inline std::string sessionPath(const std::string& name) {
    return TARNEL_APPLICATION_FOLDER "/default/sessions/" + name;
}

/// The plan of one of the menu's charts, in the window of its sheet.
struct DrawnApproach {
    explicit DrawnApproach(const std::string& place, const std::string& text = {})
        : file(TARNEL_CHARTS_FOLDER "/" + place + ".toml"),
          words(text.empty() ? readFileBytes(file, 1 << 16) : text),
          session(readSession(
              readFileBytes(sessionPath(sessionOf(words, file) + ".ts"), largestSession))) {
        const PlanWindow window{26800, 20400, 3300, 1600};
        framing = framePlan(source, chart, session, window);
        plane = std::make_unique<ChartPlane>(session, framing.twipsPerMile, framing.centre);
        plan = planOf(source, chart, *plane);
    }

    std::string file;
    std::string words;
    SessionFile session;
    AuthoredChart chart = chartOf(session);
    ApproachSource source = readApproach(words, file, chart);
    PlanFraming framing;
    std::unique_ptr<ChartPlane> plane;
    ApproachPlan plan;
};

constexpr const char* placesOfCharts[] = {"eddk", "eddl", "eddr", "edds", "edma",
                                          "lime", "lkkv", "lkpr", "lowg"};

} // namespace tarnel
