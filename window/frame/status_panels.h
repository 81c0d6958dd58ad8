#pragma once

#include "shell/trainer_controls.h"
#include "window/widgets/form_binding.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QLabel;

namespace tarnel {

/// `StatusPanels`: the status bar: session, modes and flight time side by side.
class StatusPanels : public QWidget {
    Q_OBJECT

  public:
    StatusPanels(TrainerControls& form, TextPanel& flightNotice, FormBinding& binding,
                 QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QLabel*> panels;
    QTimer noticeEnd;
};

} // namespace tarnel
