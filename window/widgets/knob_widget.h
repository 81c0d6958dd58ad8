#pragma once

#include "core/drawing_surface.h"
#include "instruments/knob_drag.h"
#include "look/panel_look.h"
#include "window/widgets/knob_drawing.h"
#include "window/widgets/knob_travel.h"
#include "window/widgets/mouse_hold.h"
#include "window/widgets/panel_input.h"

#include <QWidget>

#include <functional>

namespace tarnel {

/// `KnobWidget`: a knob on a module: it reports what the hand does and shows what it is told.
///
/// Positions are twips from the left upper corner of the widget. Any of the calls may be empty; a
/// double click without a call of its own is a press.
class KnobWidget : public QWidget {
    Q_OBJECT

  public:
    KnobWidget(PictureStore& pictures, KnobCap cap, QWidget* parent = nullptr);

    void setPointer(double degrees) { show(&KnobLook::pointer, degrees); }
    /// Locked or switched off: still reports, since the model decides what it takes.
    void setDimmed(bool dimmed) { show(&KnobLook::dimmed, dimmed); }
    /// What a screen reader says of its position.
    void setValueText(const QString& text);
    [[nodiscard]] const QString& valueText() const { return value; }
    /// What Space and Enter do: a double click, or a step where that means nothing.
    void click();
    void setTwipsPerPixel(double twips) { twipsPerPixel = twips; }
    /// Whether the marks around the cap are painted.
    void setScaleShown(bool shown) { scaleShown = shown; }
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    std::function<void(Point)> press;
    std::function<void(Point, MouseButton)> move;
    std::function<void()> release;
    /// The mouse was taken away, or another button than the left one came up: no click. Without
    /// this call a release.
    std::function<void()> lost;
    std::function<void()> doubleClick;
    std::function<void(int)> step;      ///< by wheel and keys
    std::function<KnobTravel()> travel; ///< where it stands, as a number

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    [[nodiscard]] double rim() const;
    [[nodiscard]] Point twipsAt(QPointF at) const;
    /// Changes one part of the look, and paints again if it differs.
    template <class T>
    void show(T KnobLook::*part, T next) {
        if (knob.*part == next)
            return;
        knob.*part = next;
        update();
    }
    void paintScale(QPainter& painter) const;
    void letGo();
    void endPress(bool mayClick);

    PictureStore& pictures;
    KnobLook knob;
    WheelNotches notches;
    MouseHold hold{*this, [this] { letGo(); }};
    QString value;
    bool scaleShown = true;
    double twipsPerPixel = look::twipsPerPixel;
};

} // namespace tarnel
