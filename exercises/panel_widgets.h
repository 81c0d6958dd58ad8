#pragma once

#include "strings/text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarnel {

/// A field to type into, with its unit behind it.
struct EntryWidgets {
    std::string_view field;
    std::string_view unitLabel;
    Text unit;
};

/// The widgets of a sub-question: its prompt, either options or a list, fields in the wind panel,
/// and the label or box for the answer.
struct RowWidgets {
    std::string_view prompt;
    std::string_view answer;
    std::vector<std::string_view> options;
    std::string_view list;
    std::vector<EntryWidgets> entries;
};

/// The widgets of one panel by their names; an empty name for what the panel lacks. A panel whose
/// flight has a code folds when the student watches or flies.
struct PanelWidgets {
    std::string_view frame;
    std::string_view next;
    std::string_view solution;
    std::string_view fly;
    std::string_view cancel;
    std::string_view random;
    std::string_view mistakes;
    std::string_view statistic;
    std::string_view statisticBox;
    std::string_view task;
    std::string_view notice;
    std::string_view known; ///< what is known besides the task
    std::string_view rule;  ///< of answering
    std::int16_t flyCode;   ///< the value of `c_QAFly` while its question is flown; 0 never
    std::vector<RowWidgets> rows;
};

/// The panels of the exercises.
enum class PanelId { frame1, frame2, frame11, frame20, frame29 };
constexpr std::size_t panelCount = 5;

/// By `PanelId`.
[[nodiscard]] const std::array<PanelWidgets, panelCount>& panelWidgets();

} // namespace tarnel
