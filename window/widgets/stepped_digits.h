#pragma once

#include "window/widgets/digit_display.h"
#include "window/widgets/knob_travel.h"
#include "window/widgets/panel_input.h"

#include <functional>

namespace tarnel {

/// `SteppedDigits`: digits that a left click, the wheel and the keys step while they are offered.
class SteppedDigits : public DigitDisplay {
    Q_OBJECT

  public:
    using DigitDisplay::DigitDisplay;

    /// Whether the digits take the hand at present.
    void setOffered(bool offered);

    /// Steps them if they are offered.
    void stepBy(int steps);

    std::function<void(int)> step;
    std::function<KnobTravel()> travel; ///< where they stand, as a number

  protected:
    void paintOver(QPainter& painter) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    WheelNotches notches;
    bool offered = false;
    bool pressed = false; ///< with the left button, which steps when it is released
};

} // namespace tarnel
