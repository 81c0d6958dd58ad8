#pragma once

#include <QString>

namespace tarnel {

/// Opens a PDF document in the user's reader, at a page if that is above 0 and the reader can be
/// told; without a reader in whatever the desktop opens it with. False if nothing does.
bool openInReader(const QString& path, int page);

} // namespace tarnel
