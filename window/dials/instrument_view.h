#pragma once

#include "instruments/user_control_1.h"
#include "strings/string_table.h"
#include "window/dials/instrument_areas.h"
#include "window/dials/instrument_painter.h"
#include "window/dials/spoken_reading.h"
#include "window/widgets/knob_travel.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/mouse_hold.h"
#include "window/widgets/panel_input.h"

#include <QBrush>
#include <QTimer>
#include <QWidget>

namespace tarnel {

/// `InstrumentView`: shows a panel instrument in a square and hands it mouse, wheel and keys.
///
/// Tab goes from knob to knob and on; Left and Right choose one too. Up and Down turn it by a
/// degree, the page keys by ten; Space clicks the selector, and on the heading bug knob it is a
/// double click.
class InstrumentView : public QWidget {
    Q_OBJECT

  public:
    InstrumentView(UserControl_1& control, PictureStore& pictures, const StringTable& texts,
                   QWidget* parent = nullptr);

    /// To be called often: paints again only if the instrument shows something else.
    void refresh();

    /// The reading, behind the name of what has the keyboard; nothing under a cover.
    [[nodiscard]] QString spoken() const;

    /// What has the keyboard while the view has it.
    [[nodiscard]] InstrumentArea focusedArea() const;
    [[nodiscard]] QSize sizeHint() const override;

    /// What a hand can take hold of besides the dial itself; nothing under a cover.
    [[nodiscard]] std::vector<InstrumentArea> knobs() const;
    [[nodiscard]] QRect knobPlace(InstrumentArea knob) const;
    [[nodiscard]] QString knobName(InstrumentArea knob) const;
    /// In degrees: the course, the heading that a card is turned to, or the heading bug.
    [[nodiscard]] KnobTravel knobTravel(InstrumentArea knob) const;
    /// Turns a knob as wheel and keys do, and does what Space does on it.
    void turnKnob(InstrumentArea knob, int steps);
    void clickKnob(InstrumentArea knob);

    /// What lies around the bezel's corners, in the view's own place.
    void setGround(const QBrush& around);

    ModelGuard guard = unguarded();
    /// What the needles follow, for the spoken reading. May be empty.
    std::function<SpokenStations()> stations;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent* event) override;

  private:
    /// What a paint shows besides the picture itself.
    struct Shown {
        std::uint64_t revision = 0;
        std::int16_t display = 0;
        std::int16_t headingBug = 0;
        double mouseObs = 0;
        SpokenStations stations;
        bool operator==(const Shown&) const = default;
    };

    [[nodiscard]] double side() const { return std::min(width(), height()); }
    [[nodiscard]] Point twipsAt(QPointF at) const;
    [[nodiscard]] Shown present() const;
    void letGo(Point at);
    void hover(QPointF at);
    void setHovered(InstrumentArea area);
    void focusArea(InstrumentArea area);
    void keepFocusUsable();
    void showRing(bool shown);
    [[nodiscard]] InstrumentArea ringedArea() const;
    void paintKnobs(QPainter& painter);
    void paintSelector(QPainter& painter);
    void speak();
    [[nodiscard]] QString tipOf(InstrumentArea area) const;
    void change(const std::function<void()>& action);

    UserControl_1& instrument;
    PictureStore& pictures;
    const StringTable& texts;
    InstrumentPainter instrumentPainter;
    InstrumentAreas areas;
    WheelNotches notches;
    MouseHold hold;
    Shown shown;
    QBrush ground;
    QString said; ///< what a screen reader was sent last
    QTimer betweenReadings;
    InstrumentArea hovered = InstrumentArea::none;
    InstrumentArea pressed = InstrumentArea::none;
    InstrumentArea focused = InstrumentArea::none;
    bool ringShown = false; ///< the keyboard is in use
};

} // namespace tarnel
