#pragma once

#include "shell/form_1.h"
#include "window/form_binding.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace tarnel {

/// `ControlStrip`: the card below the chart: start and stop, the speed, what is shown, the replay's
/// place, and the read-outs.
class ControlStrip : public QWidget {
    Q_OBJECT

  public:
    ControlStrip(Form1& form, FormBinding& binding, QWidget* parent = nullptr);

    /// Shows on the start button what a click will do.
    void refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QHBoxLayout* makeFlightRow();
    QHBoxLayout* makeReplayRow();
    QLayout* makeBoxes();
    QHBoxLayout* makeReadouts();
    QLabel* captioned(Text text);

    Form1& form;
    FormBinding& binding;
    QLabel* speedCaption = nullptr;
    QPushButton* startButton = nullptr;
    bool startShowsStop = false;
};

} // namespace tarnel
