#pragma once

#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/aircraft.h"
#include "engine/chart_mouse.h"

#include <optional>

namespace tarnel {

/// The keyboard's hand on the chart: a crosshair that goes by steps. What it does it does by
/// pressing, moving and releasing the mouse, so that all comes out as with a pointer at its place.
class ChartCrosshair {
  public:
    struct Given {
        ChartMouse& mouse;
        const Aircraft& aircraft;
        const Stations& stations;
        const MapView& view;
        const ChartPicture& picture;
        const Wind& wind;
        const WindSource& windSource; ///< a wind by chance is not told by where a line begins
    };
    explicit ChartCrosshair(const Given& what) : given(what) {}

    enum class Way { left, right, up, down };
    /// How far a step goes: 0.1, 1 or 5 NM; in what is turned 1, 1 or 10 degrees, and 2, 2 or 10 kt
    /// of a wind.
    enum class Stride { fine, usual, large };
    /// What the hand has taken hold of.
    enum class Grip { none, station, heading, wind };

    /// Moves the crosshair, with the station that it holds, and shows it if it is not shown. While
    /// the heading or the wind is held, left and right turn that, up and down change the speed of
    /// the wind. A wind that is to be drawn is taken hold of.
    void step(Way way, Stride stride);
    /// Lets go of what is held; else begins the wind that is to be drawn, takes hold of the station
    /// under the crosshair, or places the aircraft there. False if the mouse could not do it.
    bool press();
    /// Puts back what is held, puts a tool away or hides the crosshair. False if there was nothing.
    bool leave();
    /// Lets go where things stand, and hides the crosshair.
    void letGo();
    /// The pointer takes over: nothing is held here any more.
    void hide();
    /// Takes hold of the aircraft's heading. False if the mouse could not do it.
    bool turn();
    /// Shows the crosshair at the aircraft, or in the middle of the paper if that is not to be
    /// seen.
    void toAircraft();
    /// Goes to the next station that is shown, in their order, from which places are told then. One
    /// that is held stays, and is told from there.
    void toStation(int direction);
    /// Tells places from a station, or by their coordinates.
    void switchTelling();

    [[nodiscard]] Grip grip() const { return given.mouse.holds() ? held : Grip::none; }
    [[nodiscard]] bool shown() const { return isShown; }
    [[nodiscard]] Point place() const { return at; }
    /// The station that is held or was last.
    [[nodiscard]] Slot station() const { return carried; }
    /// From where places are told; nothing: by coordinates.
    [[nodiscard]] std::optional<Slot> toldFrom() const { return from; }
    /// The crosshair as it is seen from a station: bearing and NM on the chart.
    [[nodiscard]] Polar seenFrom(Slot station) const;
    [[nodiscard]] GeoPosition position() const;

  private:
    void show(Point place);
    void moveBy(Point way);
    void turnBy(int steps);
    void changeWind(Way way, Stride stride);
    bool beginWind();
    [[nodiscard]] Point headingPoint() const;
    [[nodiscard]] Point windPoint() const;
    [[nodiscard]] bool onPaper(Point place) const;

    Given given;
    Point at;
    bool isShown = false;
    Grip held = Grip::none;
    Slot carried = Slot::vor1;
    std::optional<Slot> from;
    Slot lastFrom = Slot::vor1;
    int degrees = 0; ///< of the heading or the wind that is held
    int knots = 0;
};

} // namespace tarnel
