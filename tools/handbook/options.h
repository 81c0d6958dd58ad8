#pragma once

#include <string>
#include <vector>

namespace tarnel {

enum class HandbookCommand { help, sections, figures, plates };

struct HandbookOptions {
    HandbookCommand command = HandbookCommand::help;
    std::vector<std::string> sources; ///< plans of figures, or courses
    std::string out;                  ///< a folder
    bool german = false;
};

/// Reads the words behind the program's name. Throws UsageError.
[[nodiscard]] HandbookOptions readHandbookOptions(const std::vector<std::string>& words);

} // namespace tarnel
