#pragma once

#include <QAccessibleWidget>

namespace tarnel {

class ChartView;

/// `ChartAccess`: the chart, with where the aircraft stands to the stations as its description.
class ChartAccess : public QAccessibleWidget {
  public:
    explicit ChartAccess(ChartView& chart);

    /// Read when it is asked for: in flight it is never the same for long.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

  private:
    ChartView& view;
};

} // namespace tarnel
