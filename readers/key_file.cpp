#include "readers/key_file.h"

#include "core/plain_text.h"
#include "platform/path_text.h"

#include <filesystem>
#include <fstream>
#include <string_view>

namespace tarnel {

KeyGroup readKeyGroup(const std::string& path, const std::string& group) {
    KeyGroup keys;
    std::error_code failure;
    if (!std::filesystem::is_regular_file(pathOf(path), failure))
        return keys;
    std::ifstream file(pathOf(path), std::ios::binary);
    bool inGroup = false;
    for (std::string line; std::getline(file, line);) {
        line = std::string(trimmed(line));
        const std::size_t sign = line.find('=');
        if (line.starts_with('['))
            inGroup = line == "[" + group + "]";
        else if (inGroup && !line.starts_with('#') && sign != std::string::npos)
            keys.emplace(trimmed(line.substr(0, sign)), trimmed(line.substr(sign + 1)));
    }
    return keys;
}

} // namespace tarnel
