#pragma once

#include <functional>

namespace tarnel {

/// Runs what the user's hand does to the model, so that its owner can catch what the model throws.
using ModelGuard = std::function<void(std::function<void()>)>;

/// The guard that lets everything through.
inline ModelGuard unguarded() {
    return [](const std::function<void()>& action) { action(); };
}

} // namespace tarnel
