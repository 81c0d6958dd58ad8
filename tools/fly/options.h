#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// What the command line asks for. An output of "-" is standard output.
struct FlyOptions {
    std::string plan;
    std::optional<std::string> csv;
    std::optional<std::string> picture;
    std::optional<std::string> session;
    std::vector<std::string> tracks; ///< each with an ending that tells its format
    std::optional<double> until;     ///< seconds
    bool debrief = false;            ///< to standard output
    bool german = false;
    bool help = false;

    [[nodiscard]] bool hasOutput() const {
        return csv || picture || session || debrief || !tracks.empty();
    }
};

/// Reads the words behind the program's name. Throws UsageError.
[[nodiscard]] FlyOptions readOptions(const std::vector<std::string>& words);

} // namespace tarnel
