#pragma once

#include <span>
#include <vector>

namespace tarnel {

/// The steps that bring the tables of a log from each version to the next one: the first begins
/// with an empty file. A step that was published never changes; what has to be different comes as
/// a further one.
[[nodiscard]] std::span<const std::vector<const char*>> logMigrations();

} // namespace tarnel
