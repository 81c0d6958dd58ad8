#pragma once

#include <filesystem>

namespace tarnel {

/// The number of this program among those that run.
[[nodiscard]] int ownProcess();
/// Whether a program of that number runs, whoever started it.
[[nodiscard]] bool isRunning(int process);

/// The file of this program; empty if the system does not tell.
[[nodiscard]] std::filesystem::path programFile();

/// Makes a limit on the size of files an error like a full disk; without it a write beyond the
/// limit ends the program. To be called once, by `main`.
void makeFileSizeLimitAnError();

} // namespace tarnel
