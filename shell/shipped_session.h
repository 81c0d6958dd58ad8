#pragma once

#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// The path of a session of the program's own. Those of other languages than German have "e-"
/// before their names. Unless it has to be `ownLanguage`, the German one serves where there is no
/// other. Whether the file is there remains to be seen.
[[nodiscard]] std::string shippedSession(const std::string& applicationFolder,
                                         const std::string& name, const StringTable& texts,
                                         bool ownLanguage);

} // namespace tarnel
