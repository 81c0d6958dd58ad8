#include "platform/programs.h"

#include "platform/path_text.h"
#include "platform/windows/system.h"

#include <algorithm>
#include <shlwapi.h>

namespace tarnel {

std::optional<std::string> runnable(const std::string& path) {
    std::error_code failure;
    for (const char* ending : {"", ".exe"})
        if (std::string file = path + ending;
            file.ends_with(".exe") && std::filesystem::is_regular_file(pathOf(file), failure))
            return file;
    return {};
}

/// In small letters, as the system does not tell them from large ones.
std::string programName(const std::string& path) {
    std::string name = textOf(pathOf(path).stem());
    std::ranges::transform(name, name.begin(), [](char sign) {
        return sign >= 'A' && sign <= 'Z' ? static_cast<char>(sign - 'A' + 'a') : sign;
    });
    return name;
}

std::optional<std::string> systemsProgramFor(const std::string& ending) {
    wchar_t program[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    const bool found = ::AssocQueryStringW(ASSOCF_NOTRUNCATE, ASSOCSTR_EXECUTABLE,
                                           wide(ending).c_str(), L"open", program, &size) == S_OK;
    return found ? runnable(textOf(program)) : std::nullopt;
}

} // namespace tarnel
