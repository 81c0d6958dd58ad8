#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// The moment `seconds` behind `start`, which counts from 1970 UTC, to the millisecond:
/// "2026-11-22T09:30:42.333Z".
[[nodiscard]] std::string utcText(std::int64_t start, double seconds);

/// Seconds since 1970 UTC of a moment such as "2026-11-22T09:30:42.333Z" or "2026-11-22
/// 10:30:42+01:00"; without a zone it is taken as UTC. Nothing if it is anything else.
[[nodiscard]] std::optional<double> secondsOfUtc(std::string_view text);

} // namespace tarnel
