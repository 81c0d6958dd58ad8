#include "window/every_page.h"
#include "window/widgets/knob_widget.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QSlider>

namespace tarnel {
namespace {

QSize leastOf(QSize one, QSize other) {
    return one.boundedTo(other);
}

/// The smallest of the parts of a widget that a pointer presses; nothing where it presses none.
std::optional<QSize> targetOf(const QWidget& widget) {
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        QSize least = tabs->size();
        for (int i = 0; i < tabs->count(); ++i)
            least = leastOf(least, tabs->tabRect(i).size());
        return least;
    }
    const bool isHeader = qobject_cast<const QHeaderView*>(&widget); // takes no clicks
    if (const auto* list = qobject_cast<const QAbstractItemView*>(&widget); list && !isHeader) {
        const int row = list->model() && list->model()->rowCount() > 0
                            ? list->visualRect(list->model()->index(0, 0)).height()
                            : look::leastTarget;
        return QSize(list->width(), row);
    }
    if (const auto* bar = qobject_cast<const QMenuBar*>(&widget))
        return bar->actionGeometry(bar->actions().front()).size();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        return leastOf(list->size(), QSize(list->width(), list->view()->sizeHintForRow(0) < 0
                                                              ? look::leastTarget
                                                              : list->view()->sizeHintForRow(0)));
    if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
        qobject_cast<const QSlider*>(&widget) || dynamic_cast<const KnobWidget*>(&widget))
        return widget.size();
    return std::nullopt;
}

// Boxes, tabs, rows, knobs, on every page, in the smallest of the usual windows.
TEST_F(EveryPage, HasNothingTooSmallToHit) {
    int count = 0;
    goEverywhere(germanTable(), {1024, 768}, [&count](QWidget& shown, const std::string& page) {
        for (const auto* widget : shown.findChildren<QWidget*>()) {
            if (!widget->isVisible() || !widget->isEnabled())
                continue;
            const std::optional<QSize> target = targetOf(*widget);
            if (!target)
                continue;
            ++count;
            EXPECT_GE(std::min(target->width(), target->height()), look::leastTarget)
                << page << ": " << widget->metaObject()->className() << ' '
                << widget->objectName().toStdString() << ' '
                << widget->accessibleName().toStdString();
        }
        for (const auto* menu : shown.findChildren<QMenu*>())
            for (QAction* action : menu->actions())
                if (!action->isSeparator()) {
                    EXPECT_GE(menu->actionGeometry(action).height(), look::leastTarget)
                        << page << action->text().toStdString();
                }
    });
    EXPECT_GT(count, 500);
}

} // namespace
} // namespace tarnel
