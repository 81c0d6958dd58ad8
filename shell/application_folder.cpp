#include "shell/application_folder.h"

#include <filesystem>

namespace tarnel {

std::string applicationFolder() {
    std::error_code failure;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
    const auto folder = failure ? std::filesystem::current_path() : program.parent_path();
    return (folder.parent_path() / "share" / "tarnel").string();
}

} // namespace tarnel
