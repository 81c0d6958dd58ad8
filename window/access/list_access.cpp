#include "window/access/list_access.h"

#include "window/access/by_hand.h"

#include <QApplication>
#include <QComboBox>

namespace tarnel {

namespace {

class Entry : public Part {
  public:
    Entry(QComboBox& owner, int row) : Part(owner), list(owner), index(row) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::ListItem; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State own = Part::state();
        own.selectable = true;
        own.selected = list.currentIndex() == index;
        own.offscreen = true; // until the list is opened, which has a window of its own
        return own;
    }

  protected:
    [[nodiscard]] QString name() const override { return list.itemText(index); }
    [[nodiscard]] QRect area() const override { return list.rect(); }
    [[nodiscard]] std::function<void()> press() const override {
        return [&opened = list, row = index] {
            if (row >= opened.count())
                return;
            opened.setCurrentIndex(row);
            emit opened.activated(row);
        };
    }

  private:
    QComboBox& list;
    int index;
};

/// A choice that has changed is said where the list has the keyboard. The event for a new value
/// that Qt sends becomes one of selection on AT-SPI, of which Qt 6.4 has nothing to show.
void tellChoice(QComboBox& list) {
    QAccessibleEvent changed(&list, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&changed);
}

} // namespace

ListAccess::ListAccess(QComboBox& shown) : Whole(&shown, QAccessible::ComboBox), list(shown) {
    QObject::connect(&list, &QComboBox::currentTextChanged, &list,
                     [&changed = list] { tellChoice(changed); });
}

bool ListAccess::isOpen() const {
    const QWidget* popup = QApplication::activePopupWidget();
    return popup && popup->parentWidget() == &list;
}

QAccessible::State ListAccess::state() const {
    QAccessible::State own = QAccessibleWidget::state();
    own.expandable = own.hasPopup = true;
    own.expanded = isOpen();
    own.collapsed = !own.expanded;
    return own;
}

QString ListAccess::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value || kind == QAccessible::Description)
        return list.currentText();
    return QAccessibleWidget::text(kind);
}

QStringList ListAccess::actionNames() const {
    return QStringList{showMenuAction(), pressAction()} + QAccessibleWidget::actionNames();
}

void ListAccess::doAction(const QString& action) {
    if (action != showMenuAction() && action != pressAction())
        return QAccessibleWidget::doAction(action);
    byHand(list,
           [&opened = list, open = isOpen()] { open ? opened.hidePopup() : opened.showPopup(); });
}

int ListAccess::partCount() const {
    return list.count();
}

Part* ListAccess::makePart(int index) const {
    return new Entry(list, index);
}

} // namespace tarnel
