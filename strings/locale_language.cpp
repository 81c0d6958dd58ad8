#include "strings/locale_language.h"

#include "platform/user.h"

#include <string>

namespace tarnel {

const StringTable& localeTable() {
    const std::string name = localeName();
    return name.substr(0, name.find_first_of("_.@")) == "de" ? germanTable() : englishTable();
}

} // namespace tarnel
