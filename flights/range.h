#pragma once

#include "core/number_text.h"

#include <string>

namespace tarnel {

/// The numbers from one to another, both included.
template <class T>
struct Range {
    T lowest;
    T highest;

    [[nodiscard]] constexpr bool contains(T value) const {
        return value >= lowest && value <= highest;
    }
    [[nodiscard]] std::string inWords() const {
        return numberText(lowest) + " to " + numberText(highest);
    }
};

} // namespace tarnel
