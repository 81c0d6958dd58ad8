#pragma once

#include "window/widgets/mouse_hold.h"

#include <QSlider>
#include <QTimer>

#include <functional>

namespace tarnel {

/// `ReplayBar`: the bar of the replay. A press takes the handle to the mouse; what a fast hand asks
/// for between two frames is asked for once.
class ReplayBar : public QSlider {
    Q_OBJECT

  public:
    explicit ReplayBar(QWidget* parent = nullptr);

    /// Called with each sample that the user goes to, 25 times a second at most while dragging.
    std::function<void(int)> onScroll;

    /// Shows a range and a value that came about elsewhere.
    void showPlace(int max, int value);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void followHand();
    [[nodiscard]] int sampleAt(const QMouseEvent& event) const;
    void letGo();

    MouseHold hold{*this, [this] { letGo(); }};
    QTimer frame;
    int wanted = 0; ///< the sample under the hand that drags
};

} // namespace tarnel
