#include "persistence/user_data.h"

#include "platform/user.h"

namespace tarnel {

std::string userDataFolder() {
    return dataFolder() + "/tarnel";
}

std::string userCourses() {
    return userDataFolder() + "/courses";
}

} // namespace tarnel
