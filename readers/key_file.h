#pragma once

#include <map>
#include <string>

namespace tarnel {

/// The keys of a group and their values as they stand.
using KeyGroup = std::map<std::string, std::string>;

/// Reads a group of a file of the desktop ("[group]", then lines of "key=value"). The first of two
/// equal keys counts. Without the file or the group there are no keys.
[[nodiscard]] KeyGroup readKeyGroup(const std::string& path, const std::string& group);

} // namespace tarnel
