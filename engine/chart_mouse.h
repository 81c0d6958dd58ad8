#pragma once

#include "core/drawing_surface.h"
#include "core/stations.h"
#include "engine/hand_history.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace tarnel {

class UserControl2;

enum class ChartButton { left, right, other };

/// The mouse on the chart: it places the aircraft, turns it with the heading tool, or draws the
/// wind; while charts are edited it drags the stations. It acts only in the north-up view; all but
/// the wind only while the simulation stands still.
class ChartMouse {
  public:
    explicit ChartMouse(UserControl2& simulation) : sim(simulation) {}

    /// A press at a chart position in twips. The right button picks the heading tool until it is
    /// released.
    void down(ChartButton button, Point at);
    void move(Point at);
    void up();
    /// True between a press and its release, if it took hold of anything.
    [[nodiscard]] bool holds() const { return held.has_value(); }
    /// Puts back what the hand holds, as if it had not been touched. False if it holds nothing.
    bool takeBack();
    /// Puts the station that the last press took hold of back to where it stood: a double click is
    /// no drag.
    void takeBackDrag();
    /// Ends a drag as the release does, puts every tool away and hides what they show.
    void cancel();

    /// The station whose symbol lies at a chart position, while charts are edited.
    [[nodiscard]] std::optional<Slot> stationAt(Point at) const;

    /// The next press begins the wind line: from where it starts the wind comes, 100 twips are 2
    /// kt.
    void pickWindTool();

    /// A locked mouse does nothing.
    void setLocked(bool lock);

    [[nodiscard]] bool windTool() const { return tool == Tool::wind; }

    /// Called with the heading that the bug takes: the one that was just drawn, whole degrees 0 to
    /// 359, or the bug's before it if that is taken back.
    std::function<void(std::int16_t)> headingDrawn;

  private:
    enum class Tool { standard, heading, wind };

    [[nodiscard]] bool allowed() const;
    void decodeRightButton();
    void showHeadingLine(Point at);
    void drawHeading(Point at);
    void place(Point at);
    void showWindLine(Point at);
    void drawWind(Point at);
    void dragStation(Point at);
    void begin(Deed deed, Slot slot = Slot::vor1);
    void finish();
    void letGo();
    void hideHeadingLine();
    void hideWindLine();

    UserControl2& sim;
    Tool tool = Tool::standard;
    bool locked = false;
    bool airplaneDragging = false;
    bool headingDragging = false;
    bool windDragging = false;
    Point windStart;
    std::optional<Slot> draggedStation;
    std::optional<HandStep> held; ///< what the hand is doing
    bool stationMoved = false;    ///< the last press has moved a station
};

} // namespace tarnel
