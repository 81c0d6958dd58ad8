#pragma once

#include "soak/dice.h"
#include "soak/trail.h"

#include <QObject>
#include <QWidget>

#include <functional>
#include <string>

class QAction;
class QComboBox;
class QMenu;
class QMenuBar;

namespace tarnel {

/// `Hand`: a hand at mouse, wheel and keys that takes what comes. Its presses go to the window, as
/// those of a desktop do, so what covers a control gets them.
class Hand {
  public:
    struct Given {
        Dice& dice;
        Trail& trail;
        Reach& controls;
        Reach& entries; ///< of menus
    };
    explicit Hand(const Given& what);

    /// Uses something within one of the windows that are up, or within a dialog that blocks them:
    /// of a few by chance what was used least.
    void useAny();
    /// Uses something within `part`. False if there is nothing that can be reached.
    bool useWithin(const QWidget& part);
    void use(QWidget& widget);
    /// Clicks on a button of that name which can be reached. False if there is none.
    bool press(const QWidget& within, const char* name);
    void click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
    void drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton);
    void wheel(QWidget& widget);
    /// A key, or several at once, to the window that has the keyboard.
    void useKey();
    /// Triggers an entry of the menus, of a few by chance that which was used least.
    void useMenus(QMenuBar& bar);
    /// Triggers an entry by its name, if it can be used.
    void useEntry(const QWidget& window, const char* name);
    /// Chooses in what has popped up, or closes it.
    void answerPopups();

    /// Notes all controls and entries that there are, whether or not they can be reached now.
    void lookAround();

  private:
    [[nodiscard]] QList<QWidget*> reachable(const QWidget& root) const;
    [[nodiscard]] QWidget* leastUsed(const QList<QWidget*>& widgets);
    [[nodiscard]] QPoint placeIn(const QWidget& widget);
    void answerMenu(QMenu& menu);
    void trigger(QAction& action);
    void type(QWidget& field);
    void useList(QComboBox& list);
    void useFreely(QWidget& widget);
    void watchForPopups();

    Given given;
    QObject life; ///< what comes later does not come after it
};

} // namespace tarnel
