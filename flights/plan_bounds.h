#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarnel {

/// More than any plan of a flight needs, in bytes.
constexpr std::size_t largestPlan = std::size_t{1} << 20;

/// Refuses with a PlanError, before it is parsed, a text that is too large, one with brackets or
/// keys in keys so deep that no plan has them, and one with letters in keys that TOML does not
/// know: the parser has no bounds of its own for these. Whatever else is wrong is the parser's
/// matter.
void checkPlanBounds(std::string_view text, const std::string& file);

} // namespace tarnel
