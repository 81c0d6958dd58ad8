#pragma once

#include "shell/form_1.h"

#include <QWidget>

class QToolButton;

namespace tarnel {

class ViewSwitch;

/// `ChartControls`: what lies over the upper edge of the chart: the two views and the scale.
class ChartControls : public QWidget {
    Q_OBJECT

  public:
    explicit ChartControls(Form1& form, QWidget* parent = nullptr);

    /// Shows the present view.
    void refresh();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QToolButton* addZoom(const char* name, Text caption, Text tip, int steps);

    Form1& form;
    ViewSwitch* views = nullptr;
    QToolButton* zoomOut = nullptr;
    QToolButton* zoomIn = nullptr;
    int shownScale = 0;
};

} // namespace tarnel
