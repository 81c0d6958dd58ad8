#pragma once

#include "shell/form_1.h"

#include <QWidget>

class QPushButton;
class QToolButton;

namespace tarnel {

/// `ChartControls`: what lies over the upper edge of the chart: the two views and the scale.
class ChartControls : public QWidget {
    Q_OBJECT

  public:
    explicit ChartControls(Form1& form, QWidget* parent = nullptr);

    /// Shows the present view.
    void refresh();

  private:
    QPushButton* addView(const char* name, const char* segment, Text caption, bool northUp);
    QToolButton* addZoom(const char* name, Text caption, Text tip, int steps);

    Form1& form;
    QPushButton* northUp = nullptr;
    QPushButton* headingUp = nullptr;
    QToolButton* zoomOut = nullptr;
    QToolButton* zoomIn = nullptr;
    int shownScale = 0;
    int shownView = -1;
};

} // namespace tarnel
