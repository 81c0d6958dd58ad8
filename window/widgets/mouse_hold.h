#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace tarnel {

/// `MouseHold`: tells a widget that holds the mouse when it has lost it without a release: because
/// a box or a menu came up, the focus or the window went, or the button came up elsewhere.
class MouseHold : public QObject {
    Q_OBJECT

  public:
    /// `lost` does what a release would do; it is called at most once for each press.
    MouseHold(QWidget& holder, std::function<void()> lost);

    /// The button has gone down on the widget.
    void begin();
    /// The button has come up, as it should.
    void end();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] bool loses(const QObject* watched, const QEvent& event) const;

    QWidget& widget;
    std::function<void()> onLost;
    QObject* window = nullptr; ///< of the widget, while it holds the mouse
    bool tracked = false;      ///< it has moves without a button, too, while it does not
};

} // namespace tarnel
