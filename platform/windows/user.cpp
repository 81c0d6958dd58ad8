#include "platform/user.h"

#include "platform/path_text.h"
#include "platform/windows/system.h"

#include <algorithm>
#include <knownfolders.h>
#include <shlobj.h>

namespace tarnel {

namespace {

std::string known(const KNOWNFOLDERID& folder) {
    wchar_t* path = nullptr;
    const bool found = ::SHGetKnownFolderPath(folder, 0, nullptr, &path) == S_OK;
    std::string text = found ? textOf(path) : std::string();
    ::CoTaskMemFree(path);
    return text;
}

} // namespace

const char pathSeparator = ';';

std::string environment(const char* name) {
    const std::wstring asked = wide(name);
    const DWORD needed = ::GetEnvironmentVariableW(asked.c_str(), nullptr, 0);
    std::wstring value(needed, L'\0');
    value.resize(::GetEnvironmentVariableW(asked.c_str(), value.data(), needed));
    return narrow(value);
}

std::string homeFolder() {
    return known(FOLDERID_Profile);
}

std::string dataFolder() {
    return known(FOLDERID_LocalAppData);
}

std::string downloadsFolder() {
    return known(FOLDERID_Downloads);
}

/// With "_" between language and country.
std::string localeName() {
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    ::GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH);
    std::string text = narrow(name);
    std::ranges::replace(text, '-', '_');
    return text;
}

} // namespace tarnel
