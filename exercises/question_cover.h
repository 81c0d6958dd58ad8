#pragma once

#include "strings/text.h"

#include <cstdint>

namespace tarnel {

/// What a question keeps from sight.
struct QuestionCover {
    bool instruments = false; ///< both, and all that stands above them
    bool figures = false;     ///< courses above instruments, the autopilot's heading, the DME
    Text reason = Text::instrumentCoveredWhy; ///< why the instruments are covered

    bool operator==(const QuestionCover&) const = default;
};

/// The cover of an open question of exercise `type`. Figures are covered where a position is asked
/// for: they would tell it. Orientation is answered from the chart alone. Without a flight
/// (`posed` is false) the panel shows another one's settings.
[[nodiscard]] QuestionCover questionCover(std::int16_t type, bool posed);

} // namespace tarnel
