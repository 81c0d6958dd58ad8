#pragma once

#include "shell/form_1.h"

#include <QWidget>

class QPushButton;

namespace tarnel {

/// `ViewSwitch`: two segments that turn the chart north up or heading up.
class ViewSwitch : public QWidget {
    Q_OBJECT

  public:
    explicit ViewSwitch(Form1& form, QWidget* parent = nullptr);

    /// Shows the present view.
    void refresh();

  private:
    QPushButton* addView(const char* name, const char* segment, Text caption, bool northUp);

    Form1& form;
    QPushButton* northUp = nullptr;
    QPushButton* headingUp = nullptr;
    int shownView = -1;
};

} // namespace tarnel
