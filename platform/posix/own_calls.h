#pragma once

#include <array>

namespace tarnel {

/// What systems with POSIX calls do each in a way of its own; nothing but platform/ includes this.

/// A pipe of which nothing waits and that no started program gets: read end, write end. False if it
/// can't be made.
[[nodiscard]] bool makeQuietPipe(std::array<int, 2>& pipe);
/// A local socket of that kind; -1 if it can't be made.
[[nodiscard]] int quietSocket();
/// The flags by which a peer that has gone is an error and no signal.
[[nodiscard]] int quietSendFlags();

} // namespace tarnel
