#pragma once

#include <QString>

namespace tarnel {

/// Opens a document in the program that the desktop has for it; at a page above 0 in a PDF reader
/// that can be told the page, if there is one. False if no program opens it.
bool openInReader(const QString& path, int page);

} // namespace tarnel
