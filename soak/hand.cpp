#include "soak/hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tarnel {

namespace {

/// The name of what is named in the sources, else empty: Qt names parts of its own.
std::string givenName(const QObject& object) {
    const std::string name = object.objectName().toStdString();
    return name.starts_with("qt_") ? std::string() : name;
}

/// What has no name is called by the nearest thing around it that has one.
std::string nameOf(const QObject& object, const char* kind) {
    if (std::string own = givenName(object); !own.empty())
        return own;
    for (const QObject* around = object.parent(); around; around = around->parent())
        if (const std::string name = givenName(*around); !name.empty())
            return name + "/" + kind;
    return kind;
}

std::string nameOf(const QWidget& widget) {
    return nameOf(widget, widget.metaObject()->className());
}

std::string nameOf(const QAction& action) {
    return nameOf(action, "*");
}

/// What a hand can use, if it can be reached.
bool isControl(const QWidget& widget) {
    const bool part = widget.objectName() == QLatin1String("qt_scrollarea_viewport") ||
                      qobject_cast<const QMenu*>(&widget) || widget.inherits("QScrollBar") ||
                      widget.inherits("QComboBoxPrivateContainer") ||
                      widget.inherits("QComboBoxListView");
    return !part &&
           (widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(&widget) ||
            qobject_cast<const QMenuBar*>(&widget));
}

/// The windows that take the hand: the dialog that blocks the others, else all that are shown.
QList<QWidget*> openWindows() {
    if (QWidget* dialog = QApplication::activeModalWidget())
        return {dialog};
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowHandle())
            windows << window;
    std::ranges::sort(windows, {}, [](const QWidget* window) { return nameOf(*window); });
    return windows;
}

/// The entries of a menu and of those within it, as they are when they are opened.
QList<QAction*> entriesOf(QMenu& menu) {
    emit menu.aboutToShow();
    QList<QAction*> entries;
    for (QAction* action : menu.actions())
        if (action->menu())
            entries << entriesOf(*action->menu());
        else if (!action->isSeparator())
            entries << action;
    return entries;
}

QList<QAction*> entriesOf(const QMenuBar& bar) {
    QList<QAction*> entries;
    for (const QAction* action : bar.actions())
        if (action->menu())
            entries << entriesOf(*action->menu());
    return entries;
}

} // namespace

Hand::Hand(const Given& what) : given(what) {
    watchForPopups();
}

QList<QWidget*> Hand::reachable(const QWidget& root) const {
    QList<QWidget*> all;
    for (QWidget* widget : root.findChildren<QWidget*>())
        if (widget->isVisible() && widget->isEnabled() && widget->window() == root.window() &&
            isControl(*widget) && !widget->visibleRegion().isEmpty())
            all << widget;
    return all;
}

QWidget* Hand::leastUsed(const QList<QWidget*>& widgets) {
    constexpr int looked = 3;
    QWidget* least = given.dice.of(widgets);
    for (int i = 1; i < looked; ++i) {
        QWidget* other = given.dice.of(widgets);
        if (given.controls.usesOf(nameOf(*other)) < given.controls.usesOf(nameOf(*least)))
            least = other;
    }
    return least;
}

void Hand::useAny() {
    const QList<QWidget*> windows = openWindows();
    if (windows.isEmpty())
        throw Fault("no window is left");
    if (QWidget* window = given.dice.of(windows); !useWithin(*window))
        useKey();
}

bool Hand::useWithin(const QWidget& part) {
    const QList<QWidget*> widgets = reachable(part);
    if (widgets.isEmpty())
        return false;
    use(*leastUsed(widgets));
    return true;
}

bool Hand::press(const QWidget& within, const char* name) {
    for (auto* button : within.findChildren<QAbstractButton*>(QString::fromLatin1(name)))
        if (button->isVisible() && button->isEnabled() && !button->visibleRegion().isEmpty()) {
            use(*button);
            return true;
        }
    return false;
}

void Hand::use(QWidget& widget) {
    given.controls.used(nameOf(widget));
    given.trail.note("use " + nameOf(widget));
    if (auto* list = qobject_cast<QComboBox*>(&widget))
        useList(*list);
    else if (auto* tabs = qobject_cast<QTabBar*>(&widget))
        click(*tabs, tabs->tabRect(given.dice.below(std::max(1, tabs->count()))).center());
    else if (qobject_cast<QLineEdit*>(&widget) || qobject_cast<QAbstractSpinBox*>(&widget))
        type(widget);
    else if (qobject_cast<QAbstractButton*>(&widget) && !given.dice.once(8))
        click(widget, placeIn(widget));
    else
        useFreely(widget);
    answerPopups();
}

/// A place of it that can be seen.
QPoint Hand::placeIn(const QWidget& widget) {
    const QRect seen = widget.visibleRegion().boundingRect();
    return seen.topLeft() + QPoint(given.dice.below(std::max(1, seen.width())),
                                   given.dice.below(std::max(1, seen.height())));
}

void Hand::click(QWidget& widget, QPoint at, Qt::MouseButton button) {
    if (QWindow* window = widget.window()->windowHandle())
        QTest::mouseClick(window, button, {}, widget.mapTo(widget.window(), at));
}

void Hand::drag(QWidget& widget, QPoint from, QPoint to, Qt::MouseButton button) {
    constexpr int steps = 4;
    QWindow* window = widget.window()->windowHandle();
    if (!window)
        return;
    const QPoint corner = widget.mapTo(widget.window(), QPoint());
    QTest::mousePress(window, button, {}, corner + from);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(window, corner + from + (to - from) * i / steps);
    QTest::mouseRelease(window, button, {}, corner + to);
}

void Hand::wheel(QWidget& widget) {
    constexpr int notch = 120;
    const QPointF at = placeIn(widget);
    const int turn = notch * given.dice.of(std::initializer_list<int>{-9, -2, -1, 1, 2, 9});
    QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, turn}, Qt::NoButton,
                      given.dice.once(6) ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&widget, &event);
}

void Hand::useKey() {
    static constexpr Qt::Key keys[] = {
        Qt::Key_Up,       Qt::Key_Down,   Qt::Key_Left,   Qt::Key_Right,  Qt::Key_PageUp,
        Qt::Key_PageDown, Qt::Key_Home,   Qt::Key_End,    Qt::Key_Tab,    Qt::Key_Backtab,
        Qt::Key_Space,    Qt::Key_Return, Qt::Key_Escape, Qt::Key_F1,     Qt::Key_F10,
        Qt::Key_F11,      Qt::Key_M,      Qt::Key_P,      Qt::Key_H,      Qt::Key_T,
        Qt::Key_V,        Qt::Key_W,      Qt::Key_R,      Qt::Key_Plus,   Qt::Key_Minus,
        Qt::Key_0,        Qt::Key_5,      Qt::Key_9,      Qt::Key_Delete, Qt::Key_Menu};
    static constexpr QKeyCombination together[] = {
        Qt::CTRL | Qt::Key_Z,      Qt::CTRL | Qt::SHIFT | Qt::Key_Z,
        Qt::CTRL | Qt::Key_D,      Qt::CTRL | Qt::Key_S,
        Qt::CTRL | Qt::Key_O,      Qt::CTRL | Qt::Key_N,
        Qt::CTRL | Qt::Key_A,      Qt::CTRL | Qt::Key_Plus,
        Qt::SHIFT | Qt::Key_Right, Qt::SHIFT | Qt::Key_F10};
    QWindow* window = QGuiApplication::focusWindow();
    if (!window)
        return;
    QKeyCombination key = given.dice.of(keys);
    if (given.dice.once(4))
        key = given.dice.of(together);
    else if (given.dice.once(6))
        key = Qt::ALT | static_cast<Qt::Key>(Qt::Key_A + given.dice.below(26));
    given.trail.note("key " + QKeySequence(key).toString().toStdString());
    QTest::keyClick(window, key.key(), key.keyboardModifiers());
    answerPopups();
}

void Hand::type(QWidget& field) {
    constexpr const char* letters = "0123456789012345678901234567890123456789.,-/NESWaz Z%<&";
    constexpr int longest = 7;
    click(field, placeIn(field));
    QWindow* window = QGuiApplication::focusWindow();
    if (!window)
        return;
    if (given.dice.once(2))
        QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    for (int i = given.dice.between(1, longest); i > 0; --i)
        QTest::keyClick(window, given.dice.of(std::string_view(letters)));
    if (given.dice.once(3))
        QTest::keyClick(window, Qt::Key_Return);
}

void Hand::useList(QComboBox& list) {
    if (given.dice.once(3))
        useFreely(list);
    else
        click(list, list.rect().center());
}

void Hand::useFreely(QWidget& widget) {
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    QWidget& target = view ? *view->viewport() : widget;
    const Qt::MouseButton button = given.dice.once(5) ? Qt::RightButton : Qt::LeftButton;
    switch (given.dice.below(5)) {
    case 0:
        click(target, placeIn(target), button);
        break;
    case 1:
        drag(target, placeIn(target), placeIn(target), button);
        break;
    case 2:
        wheel(target);
        break;
    case 3:
        if (QWindow* window = target.window()->windowHandle())
            QTest::mouseDClick(window, Qt::LeftButton, {},
                               target.mapTo(target.window(), placeIn(target)));
        break;
    default:
        widget.setFocus(Qt::TabFocusReason);
        for (int i = given.dice.between(1, 3); i > 0; --i)
            useKey();
    }
}

/// A menu of a button has a loop of its own, and a double click opens it twice: what answers it has
/// to come out of that loop each time, also while another is answered.
void Hand::watchForPopups() {
    QTimer::singleShot(0, &life, [this] {
        watchForPopups();
        answerPopups();
    });
}

void Hand::answerPopups() {
    constexpr int patience = 12;
    for (int i = 0; QWidget* popup = QApplication::activePopupWidget(); ++i) {
        auto* view = popup->findChild<QAbstractItemView*>();
        auto* menu = qobject_cast<QMenu*>(popup);
        if (i == patience)
            throw Fault("a popup does not close");
        if (menu && i < patience / 2)
            answerMenu(*menu);
        else if (view && i == 0 && view->model()->rowCount() > 0) {
            const QModelIndex row =
                view->model()->index(given.dice.below(view->model()->rowCount()), 0);
            view->scrollTo(row);
            click(*view->viewport(), view->visualRect(row).center());
        } else
            popup->close();
    }
}

void Hand::answerMenu(QMenu& menu) {
    QList<QAction*> entries;
    for (QAction* action : menu.actions())
        if (action->isVisible() && action->isEnabled() && !action->isSeparator())
            entries << action;
    if (entries.isEmpty() || given.dice.once(4)) {
        menu.close();
        return;
    }
    QAction* chosen = given.dice.of(entries);
    if (!chosen->menu())
        given.entries.used(nameOf(*chosen));
    given.trail.note("pick " + nameOf(*chosen));
    if (QWindow* window = menu.windowHandle())
        QTest::mouseClick(window, Qt::LeftButton, {}, menu.actionGeometry(chosen).center());
}

void Hand::trigger(QAction& action) {
    given.entries.used(nameOf(action));
    given.trail.note("trigger " + nameOf(action));
    action.trigger();
    answerPopups();
}

void Hand::useMenus(QMenuBar& bar) {
    constexpr int looked = 4;
    const QList<QAction*> entries = entriesOf(bar);
    QAction* least = nullptr;
    for (int i = 0; i < looked; ++i) {
        QAction* other = given.dice.of(entries);
        if (other->isEnabled() &&
            (!least || given.entries.usesOf(nameOf(*other)) < given.entries.usesOf(nameOf(*least))))
            least = other;
    }
    if (least)
        trigger(*least);
}

void Hand::useEntry(const QWidget& window, const char* name) {
    auto* action = window.findChild<QAction*>(QString::fromLatin1(name));
    if (!action)
        throw Fault(std::string("no entry called ") + name);
    if (action->isEnabled())
        trigger(*action);
}

void Hand::lookAround() {
    for (const QWidget* window : openWindows()) {
        for (const QWidget* widget : window->findChildren<QWidget*>())
            if (isControl(*widget))
                given.controls.saw(nameOf(*widget));
        if (const auto* bar = window->findChild<QMenuBar*>())
            for (const QAction* action : entriesOf(*bar))
                given.entries.saw(nameOf(*action));
    }
}

} // namespace tarnel
