#include "window/access/install.h"

#include "window/access/button_access.h"
#include "window/access/chart_access.h"
#include "window/access/dme_access.h"
#include "window/access/instrument_access.h"
#include "window/access/knob_access.h"
#include "window/access/list_access.h"
#include "window/access/tab_access.h"
#include "window/chart/chart_view.h"
#include "window/dials/instrument_view.h"
#include "window/radios/dme_selector.h"
#include "window/widgets/knob_widget.h"
#include "window/widgets/spoken.h"
#include "window/widgets/stepped_digits.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTabBar>

namespace tarnel {

namespace {

const StringTable* table = nullptr;

/// What is turned, chosen or read on the panel and the chart.
QAccessibleInterface* panelPart(QWidget& widget) {
    if (auto* knob = qobject_cast<KnobWidget*>(&widget))
        return new KnobAccess(*knob);
    if (auto* digits = qobject_cast<SteppedDigits*>(&widget))
        return new KnobAccess(*digits);
    if (auto* instrument = qobject_cast<InstrumentView*>(&widget))
        return new InstrumentAccess(*instrument);
    if (auto* selector = qobject_cast<DmeSelector*>(&widget))
        return new DmeAccess(*selector);
    if (auto* chart = qobject_cast<ChartView*>(&widget))
        return new ChartAccess(*chart);
    return nullptr;
}

/// What Qt tells otherwise than a hand finds it.
QAccessibleInterface* control(QWidget& widget) {
    if (auto* button = qobject_cast<QAbstractButton*>(&widget); button && button->isCheckable())
        return new ButtonAccess(*button, *table);
    if (auto* list = qobject_cast<QComboBox*>(&widget); list && !list->isEditable())
        return new ListAccess(*list);
    if (auto* tabs = qobject_cast<QTabBar*>(&widget))
        return new TabAccess(*tabs);
    return nullptr;
}

/// A widget that only holds others would be a "filler", which screen readers pass over with its
/// name: it is a group. Qt asks with the name of each class of a widget, from its own to the base.
QAccessibleInterface* group(const QString& className, QWidget& widget) {
    const bool holds =
        className == QLatin1String("QWidget") || className == QLatin1String("QScrollArea");
    if (!holds)
        return nullptr;
    return new QAccessibleWidget(&widget,
                                 widget.isWindow() ? QAccessible::Window : QAccessible::Grouping);
}

QAccessibleInterface* make(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (QAccessibleInterface* found = panelPart(*widget))
        return found;
    if (QAccessibleInterface* found = control(*widget))
        return found;
    if (const QAccessible::Role role = spokenRole(*widget); role != QAccessible::NoRole)
        return new QAccessibleWidget(widget, role);
    return group(className, *widget);
}

} // namespace

void installAccessibility(const StringTable& texts) {
    table = &texts;
    QAccessible::installFactory(make); // the same one is taken once
}

} // namespace tarnel
