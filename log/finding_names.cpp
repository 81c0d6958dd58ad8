#include "log/finding_names.h"

#include <algorithm>
#include <iterator>

namespace tarnel {

namespace {

constexpr std::string_view names[] = {
#define FINDING(name, ...) #name,
#include "debrief/findings.def"
};

} // namespace

std::string_view nameOfFinding(FindingKind kind) {
    return names[static_cast<std::size_t>(kind)];
}

std::optional<FindingKind> findingOf(std::string_view name) {
    const auto* const found = std::ranges::find(names, name);
    if (found == std::end(names))
        return {};
    return static_cast<FindingKind>(found - names);
}

} // namespace tarnel
