#pragma once

#include "core/drawing_surface.h"
#include "core/stations.h"
#include "engine/flight_scene.h"
#include "engine/hand_work.h"
#include "engine/simulation_properties.h"

#include <optional>

namespace tarnel {

enum class ChartButton { left, right, other };

/// The mouse on the chart: it places the aircraft, turns it with the heading tool, or draws the
/// wind; while charts are edited it drags the stations. It acts only in the north-up view; all but
/// the wind only while the simulation stands still.
class ChartMouse {
  public:
    struct Given {
        const PanelProperties& panel;
        const SessionProperties& editing;
        FlightScene& scene; ///< shows the lines and labels of the tools
        const WindSetting& wind;
        HandWork& hand; ///< does what the mouse means
    };
    explicit ChartMouse(const Given& what) : given(what) {}

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

    Given given;
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
