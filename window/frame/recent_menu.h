#pragma once

class QMenu;

namespace tarnel {

class BoxDesk;
class FileDesk;
class RecentFiles;

/// Fills `menu` with the files that were used last, whenever it opens. An item opens its file; the
/// last one empties the list.
void fillWithRecentFiles(QMenu& menu, RecentFiles& recent, FileDesk& files, BoxDesk& boxes);

} // namespace tarnel
