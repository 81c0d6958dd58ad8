#pragma once

#include "window/chart/chart_painter.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/mouse_hold.h"

#include <QWidget>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace tarnel {

class ChartKeyboard;
class ReferenceLamps;

/// `ChartView`: the chart as a widget. It shows the simulation's picture on white paper and hands
/// it the mouse.
class ChartView : public QWidget {
    Q_OBJECT

  public:
    ChartView(UserControl2& simulation, const StringTable& texts, QWidget* parent = nullptr);

    /// Paints all of it again if the picture has changed since the last call; costs next to nothing
    /// if not.
    void refresh();

    /// What a screen reader says: where the aircraft is and where it heads.
    void speak();
    [[nodiscard]] QString spokenChart() const;
    /// Where the aircraft stands as seen from each station on the chart; nothing while that may not
    /// be known.
    [[nodiscard]] QString spokenStations() const;

    /// What lies on the chart in the place of the trace while it is shown.
    void setLayer(std::unique_ptr<ChartLayer> shown) {
        layer = std::move(shown);
        painter.layer = layer.get();
    }

    /// Whether something lies on the chart in the place of the trace.
    [[nodiscard]] bool isLayered() const { return layer && layer->isShown(); }
    /// The chart by keys.
    [[nodiscard]] ChartKeyboard& keyboard() { return *keys; }

    /// Every call into the simulation goes through here, so that its owner can catch what it
    /// throws.
    ModelGuard guard = unguarded();
    /// Called with the notches that the wheel was turned over the chart, forwards positive.
    std::function<void(int)> onZoom;
    /// Called with the station that was double-clicked while charts are edited.
    std::function<void(Slot)> onEditStation;
    /// Called while charts are edited for a context menu at a place on the screen: of the station
    /// under the pointer, or of all of them for the menu key.
    std::function<void(std::optional<Slot>, QPoint)> onStationMenu;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    /// While the hand holds something, Escape puts it back, wherever the keyboard is.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] Point toTwips(QPointF at) const;
    [[nodiscard]] bool hidesAircraft() const {
        return sim.c_AirplaneEN != 1 || sim.placeIsSecret();
    }
    [[nodiscard]] double side() const { return std::min(width(), height()); }
    [[nodiscard]] bool mayEdit() const;
    [[nodiscard]] std::optional<Slot> stationAt(QPointF at) const;
    void showCursor();
    void watchKeys();
    void letGo();

    UserControl2& sim;
    const StringTable& texts;
    ChartPainter painter;
    ReferenceLamps* lamps = nullptr;
    ChartKeyboard* keys = nullptr;
    std::uint64_t shownRevision = 0;   ///< of the picture, when all of it was last asked for
    std::unique_ptr<ChartLayer> layer; ///< null without one
    std::uint64_t shownLayer = 0;      ///< the layer's
    std::pair<std::uint64_t, bool> spoken{~std::uint64_t{0}, false}; ///< what the words are of
    std::optional<Qt::CursorShape> shownCursor;
    int wheelRest = 0;
    MouseHold hold{*this, [this] { letGo(); }};
    std::optional<QPointF> pointer; ///< while it is over the chart
};

} // namespace tarnel
