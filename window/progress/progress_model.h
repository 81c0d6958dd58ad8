#pragma once

#include "shell/box_desk.h"
#include "shell/training_desk.h"

#include <QDateTime>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tarnel {

/// What the views of the log show and act on.
struct ProgressModel {
    TrainingDesk& training;
    BoxDesk& boxes;
    const StringTable& texts;
    /// A finding as a sentence; empty if it has none.
    std::function<std::string(const Finding&)> sentence = [](const Finding&) {
        return std::string();
    };
    /// Opens the debrief of a flight, or of several over one another. False, with a box, if it
    /// can't.
    std::function<bool(const std::vector<std::int64_t>&)> openFlights =
        [](const std::vector<std::int64_t>&) { return false; };
    /// Milliseconds since 1970 UTC.
    std::function<std::int64_t()> clock = [] { return QDateTime::currentMSecsSinceEpoch(); };
};

} // namespace tarnel
