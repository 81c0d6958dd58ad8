#include "strings/locale_language.h"

#include <cstdlib>
#include <string_view>

namespace tarnel {

namespace {

std::string_view localeName() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char* value = std::getenv(variable); value && *value != '\0')
            return value;
    return {};
}

} // namespace

const StringTable& localeTable() {
    const std::string_view name = localeName();
    return name.substr(0, name.find_first_of("_.@")) == "de" ? germanTable() : englishTable();
}

} // namespace tarnel
