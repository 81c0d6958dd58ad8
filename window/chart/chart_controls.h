#pragma once

#include "shell/box_desk.h"
#include "shell/chart_display.h"

#include <QWidget>

class QToolButton;

namespace tarnel {

class ViewSwitch;

/// `ChartControls`: what lies over the upper edge of the chart: the two views and the scale.
class ChartControls : public QWidget {
    Q_OBJECT

  public:
    ChartControls(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent = nullptr);

    /// Shows the present view.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QToolButton* addZoom(const char* name, Text caption, Text tip, int steps);

    ChartDisplay& display;
    BoxDesk& boxes;
    ViewSwitch* views = nullptr;
    QToolButton* zoomOut = nullptr;
    QToolButton* zoomIn = nullptr;
    int shownScale = 0;
};

} // namespace tarnel
