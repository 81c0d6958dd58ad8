#include "window/frame/key_list.h"

#include "look/look.h"
#include "window/widgets/help_page.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/plain_caption.h"
#include "window/widgets/quiet_key.h"
#include "window/widgets/text_of.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr QSize usualSize{620, 560};
constexpr int margin = 16;

QString keyTexts(const QAction& action) {
    QStringList keys;
    for (const QKeySequence& key : keysOf(action))
        keys << key.toString(QKeySequence::NativeText);
    return keys.join(QStringLiteral(", "));
}

/// The actions of a menu and of those within it.
QList<QAction*> actionsOf(const QMenu& menu) {
    QList<QAction*> all;
    for (QAction* action : menu.actions())
        action->menu() ? all << actionsOf(*action->menu()) : all << action;
    return all;
}

} // namespace

KeyList::KeyList(QMainWindow& window, const StringTable& table) : QDialog(&window), texts(table) {
    setObjectName(QStringLiteral("KeyList"));
    setWindowTitle(textOf(texts, Text::keyList));
    setHelpPage(*this, "keys");
    resize(usualSize);
    list = new QTreeWidget(this);
    list->setColumnCount(2);
    list->setHeaderLabels({textOf(texts, Text::keyDoes), textOf(texts, Text::keyColumn)});
    list->setAccessibleName(windowTitle());
    addMenus(window);
    addParts(window);
    list->expandAll();
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setCurrentItem(list->topLevelItem(0));
    auto* note = new QLabel(textOf(texts, Text::keyListNote), this);
    note->setProperty("secondary", true);
    note->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    auto* close = new QPushButton(textOf(texts, Text::closePage), this);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(look::gap);
    for (QWidget* part : std::initializer_list<QWidget*>{list, note, buttons})
        column->addWidget(part);
    giveMnemonics(*this);
}

void KeyList::addMenus(QMainWindow& window) {
    for (QAction* item : window.menuBar()->actions())
        if (item->menu())
            addActions(plainCaption(item->text()), actionsOf(*item->menu()));
    addActions(textOf(texts, Text::keyOfWindow), window.actions());
}

void KeyList::addParts(QMainWindow& window) {
    for (const auto* part : window.centralWidget()->findChildren<QWidget*>())
        addActions(part->property(keyGroupProperty).toString(), part->actions());
}

/// Actions of one caption share a row.
void KeyList::addActions(const QString& group, const QList<QAction*>& actions) {
    QTreeWidgetItem* row = nullptr;
    for (const QAction* action : actions) {
        const QString keys = keyTexts(*action);
        if (keys.isEmpty())
            continue;
        const QString caption = plainCaption(action->text());
        if (row && row->text(0) == caption)
            row->setText(1, row->text(1) + QStringLiteral(", ") + keys);
        else
            row = new QTreeWidgetItem(groupOf(group), {caption, keys});
    }
}

QTreeWidgetItem* KeyList::groupOf(const QString& name) {
    const int last = list->topLevelItemCount() - 1;
    if (last >= 0 && list->topLevelItem(last)->text(0) == name)
        return list->topLevelItem(last);
    auto* group = new QTreeWidgetItem(list, {name});
    QFont bold = list->font();
    bold.setBold(true);
    group->setFont(0, bold);
    return group;
}

} // namespace tarnel
