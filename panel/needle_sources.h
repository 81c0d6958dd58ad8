#pragma once

#include "panel/instrument_feed.h"

#include <optional>

namespace tarnel {

/// A station that a needle or a read-out follows.
struct NeedleSource {
    Slot slot = Slot::vor1;
    bool received = false; ///< it is switched on, and something this needle can point at
    bool operator==(const NeedleSource&) const = default;
};

/// What the needles of an instrument follow; a needle that its kind lacks follows nothing.
struct NeedleSources {
    std::optional<NeedleSource> first; ///< the pointer, or course and deviation
    std::optional<NeedleSource> second;
    bool operator==(const NeedleSources&) const = default;
};

/// What the needles of a position follow at present, by its kind and receivers.
[[nodiscard]] NeedleSources needleSources(const InstrumentPosition& position,
                                          const FeedSources& sources);

/// The station whose distance the DME shows; none if its selection is none of its three.
[[nodiscard]] std::optional<NeedleSource> dmeSource(const RadioFace& dme,
                                                    const UserControl2& simulation);

} // namespace tarnel
