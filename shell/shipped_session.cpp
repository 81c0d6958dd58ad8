#include "shell/shipped_session.h"

#include "platform/path_text.h"

#include <filesystem>

namespace tarnel {

std::string shippedSession(const std::string& applicationFolder, const std::string& name,
                           const StringTable& texts, bool ownLanguage) {
    const std::string folder = applicationFolder + "/default/sessions/";
    const std::string other = folder + "e-" + name;
    const bool takesOther =
        !texts.isGerman() && (ownLanguage || std::filesystem::exists(pathOf(other)));
    return takesOther ? other : folder + name;
}

} // namespace tarnel
