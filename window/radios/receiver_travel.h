#pragma once

#include "instruments/radio_face.h"
#include "window/widgets/knob_travel.h"

namespace tarnel {

/// A receiver's knob stands at one of its frequencies, counted from 1, and goes round and round.
/// Digits that are dark tell nothing of it.
[[nodiscard]] inline KnobTravel travelOf(const RadioFace& face) {
    const auto count = static_cast<double>(face.c_NumberOfFreqs.get());
    if (face.frequency.isDark() || count < 1)
        return {};
    return {.value = face.dialPosition() + 1.0,
            .least = 1,
            .most = count,
            .step = 1,
            .round = true,
            .oneByOne = true};
}

} // namespace tarnel
