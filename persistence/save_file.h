#pragma once

#include "platform/disk_calls.h"

#include <string>
#include <string_view>

namespace tarnel {

/// Makes `bytes` the content of the file at `path` (any bytes; "/" between the folders): writes a
/// new file in the same folder, has it stored, and gives it the name. So at any moment there is
/// either the file as it was or the new one, whole. What goes wrong leaves the file as it was and
/// no other behind; only a program that is killed may leave one named ".tarnel-…tmp", which a later
/// save in that folder removes.
///
/// A link stays and its target changes, or comes to be. Permissions and group of an existing file
/// stay; where the group can't be kept, it gets no more than everybody has. A file that may not be
/// written, and what is no file, is refused. Throws a run-time error that tells the cause.
void saveFileBytes(const std::string& path, std::string_view bytes);
void saveFileBytes(const std::string& path, std::string_view bytes, DiskCalls& disk);

} // namespace tarnel
