#pragma once

#include "strings/string_table.h"

#include <optional>
#include <string>

namespace tarnel {

/// What the words behind the trainer's name ask for.
struct CommandLine {
    std::string file;         ///< to open, from the root on; empty for none
    bool newInstance = false; ///< to run beside a program that runs already
    std::string answer;       ///< what is to be printed in place of a start
    std::optional<int> ended; ///< the exit status, where there is no start
};

/// Reads the command line; no display is needed. Options of Qt's own are known and left to it. Help
/// and version come before whatever is wrong; for a wrong line the status is 2.
[[nodiscard]] CommandLine readCommandLine(int argc, char** argv, const StringTable& texts);

} // namespace tarnel
