#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace tarnel {

/// A command line that can't be understood.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

enum class HandbookCommand { help, sections, figures };

struct HandbookOptions {
    HandbookCommand command = HandbookCommand::help;
    std::vector<std::string> sources; ///< plans of figures
    std::string out;                  ///< a folder
    bool german = false;
};

/// Reads the words behind the program's name. Throws UsageError.
[[nodiscard]] HandbookOptions readHandbookOptions(const std::vector<std::string>& words);

} // namespace tarnel
