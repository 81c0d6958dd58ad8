#include "persistence/user_data.h"

#include <cstdlib>

namespace tarnel {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

} // namespace

std::string userDataFolder() {
    const std::string given = environment("XDG_DATA_HOME");
    return (given.starts_with('/') ? given : environment("HOME") + "/.local/share") + "/tarnel";
}

std::string userCourses() {
    return userDataFolder() + "/courses";
}

} // namespace tarnel
