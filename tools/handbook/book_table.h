#pragma once

#include "strings/string_table.h"

#include <QByteArray>

namespace tarnel {

/// The sections of the book in the order of their pages, as a JSON array: the name of each, its
/// page, its title, and the title of its chapter in the menu. Titles and pages are those by which
/// the menu finds them.
[[nodiscard]] QByteArray bookTable(const StringTable& texts);

} // namespace tarnel
