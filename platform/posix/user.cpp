#include "platform/user.h"

#include <cstdlib>

namespace tarnel {

const char pathSeparator = ':';

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string homeFolder() {
    return environment("HOME");
}

std::string downloadsFolder() {
    return {};
}

std::string localeName() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (std::string value = environment(variable); !value.empty())
            return value;
    return {};
}

} // namespace tarnel
