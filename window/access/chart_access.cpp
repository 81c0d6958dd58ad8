#include "window/access/chart_access.h"

#include "window/chart/chart_view.h"

namespace tarnel {

ChartAccess::ChartAccess(ChartView& chart)
    : QAccessibleWidget(&chart, QAccessible::Canvas), view(chart) {}

QString ChartAccess::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? view.spokenStations() : QAccessibleWidget::text(kind);
}

} // namespace tarnel
