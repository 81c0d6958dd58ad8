#pragma once

#include <QString>

#include <functional>

namespace tarnel {

/// Opens a PDF document in the user's reader, at a page if that is above 0 and the reader can be
/// told; without a reader in whatever the desktop opens it with. False if nothing does, or
/// `notOpened` later (`openByDesktop`).
bool openInReader(const QString& path, int page, const std::function<void()>& notOpened);

} // namespace tarnel
