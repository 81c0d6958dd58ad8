#include "platform/path_text.h"

#include "platform/windows/system.h"

#include <algorithm>

namespace tarnel {

std::filesystem::path pathOf(std::string_view text) {
    return wide(text);
}

std::string textOf(const std::filesystem::path& path) {
    std::string text = narrow(path.native());
    std::ranges::replace(text, '\\', '/');
    return text;
}

} // namespace tarnel
