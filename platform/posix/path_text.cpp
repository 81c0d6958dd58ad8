#include "platform/path_text.h"

namespace tarnel {

std::filesystem::path pathOf(std::string_view text) {
    return text;
}

std::string textOf(const std::filesystem::path& path) {
    return path.string();
}

} // namespace tarnel
