#pragma once

#include "shell/trainer_controls.h"
#include "window/widgets/form_binding.h"

#include <QTimer>
#include <QWidget>

#include <vector>

class QLabel;

namespace tarnel {

/// `StatusPanels`: the status bar: session, modes and flight time side by side. It places them
/// itself: a layout would be reckoned anew with every second of flight.
class StatusPanels : public QWidget {
    Q_OBJECT

  public:
    StatusPanels(TrainerControls& form, TextPanel& flightNotice, FormBinding& binding,
                 QWidget* parent = nullptr);

    /// How many lines its texts take in a window so wide: 1 or 2.
    [[nodiscard]] int linesAt(int width) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void arrange();

    QLabel* notice = nullptr;
    std::vector<QLabel*> panels;
    QTimer noticeEnd;
};

} // namespace tarnel
