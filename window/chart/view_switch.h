#pragma once

#include "shell/box_desk.h"
#include "shell/chart_display.h"

#include <QWidget>

#include <optional>

class QPushButton;

namespace tarnel {

/// `ViewSwitch`: two segments that turn the chart north up or heading up.
class ViewSwitch : public QWidget {
    Q_OBJECT

  public:
    ViewSwitch(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent = nullptr);

    /// Shows the present view.
    void refresh();

  private:
    QPushButton* addView(const char* name, const char* segment, Text caption, bool northUp);

    ChartDisplay& display;
    BoxDesk& boxes;
    QPushButton* northUp = nullptr;
    QPushButton* headingUp = nullptr;
    std::optional<bool> shownNorthUp;
};

} // namespace tarnel
