#pragma once

#include "strings/string_table.h"

#include <QDialog>

class QMainWindow;
class QTreeWidget;
class QTreeWidgetItem;

namespace tarnel {

/// `KeyList`: all keys of a window, read from its actions: those of the menus, of the window itself
/// and of the parts that have keys while the keyboard is with them.
class KeyList : public QDialog {
    Q_OBJECT

  public:
    KeyList(QMainWindow& window, const StringTable& texts);

  private:
    void addMenus(QMainWindow& window);
    void addParts(QMainWindow& window);
    void addActions(const QString& group, const QList<QAction*>& actions);
    QTreeWidgetItem* groupOf(const QString& name);

    const StringTable& texts;
    QTreeWidget* list = nullptr;
};

} // namespace tarnel
