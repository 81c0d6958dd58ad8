#include "shell/application_folder.h"

#include "platform/path_text.h"
#include "platform/process.h"

namespace tarnel {

std::string applicationFolder() {
    const auto program = programFile();
    const auto folder = program.empty() ? std::filesystem::current_path() : program.parent_path();
    return textOf(folder.parent_path() / "share" / "tarnel");
}

} // namespace tarnel
