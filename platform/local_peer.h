#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace tarnel {

/// Whether the program at the other end of a connected local socket is of the same user.
[[nodiscard]] bool isOfSameUser(std::intptr_t socket);

/// A socket that listens at `path`, in the place of what a program left there; -1 if it can't be
/// made, and where the system has none that are files.
[[nodiscard]] std::intptr_t listeningSocket(const std::string& path);
/// The name under which such a system knows the place of `path`; empty where it has sockets.
[[nodiscard]] std::string listeningName(const std::string& path);

/// Sends `message` and the byte 0 behind it to the program that listens at `path`, and waits until
/// `end` for an answer of one byte. False without it, and if that program is another user's.
[[nodiscard]] bool handOver(const std::string& path, const std::string& message,
                            std::chrono::steady_clock::time_point end);

} // namespace tarnel
