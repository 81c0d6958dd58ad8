#pragma once

#include "core/instrument_kind.h"

namespace tarnel {

/// What a needle is, which decides how it is painted and named: the first or second pointer, the
/// bar of the VOR indicator, the HSI's course arrow with its bar, or the HSI's overlay needle.
enum class NeedleRole { none, first, second, bar, arrow, overlay };

/// The needle of `Line3to6`.
[[nodiscard]] constexpr NeedleRole firstNeedleOf(InstrumentKind kind) {
    return kind == InstrumentKind::hsi ? NeedleRole::arrow : NeedleRole::first;
}

/// The needle of `Line7to12`.
[[nodiscard]] constexpr NeedleRole secondNeedleOf(InstrumentKind kind) {
    return kind == InstrumentKind::hsi ? NeedleRole::overlay : NeedleRole::second;
}

/// What the deviation bar, `Line13`, belongs to.
[[nodiscard]] constexpr NeedleRole deviationOf(InstrumentKind kind) {
    return kind == InstrumentKind::hsi ? NeedleRole::arrow : NeedleRole::bar;
}

[[nodiscard]] constexpr bool hasHeadingBug(InstrumentKind kind) {
    using enum InstrumentKind;
    return kind == rmi || kind == hsi || kind == dg;
}

} // namespace tarnel
