#pragma once

namespace tarnel {

/// Begins to hear what asks the program to end: SIGTERM, SIGHUP and SIGINT, or what a console
/// tells. Returns a file to read from, which `clearEndings` empties, or -1 if that failed. Where
/// the system has a thread of its own for it, `told` is called from that, and there is no file.
[[nodiscard]] int hearEndings(void (*told)());
void clearEndings(int file);
/// Hears them no more and closes the file.
void ignoreEndings(int file);

} // namespace tarnel
