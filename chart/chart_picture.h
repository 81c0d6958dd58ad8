#pragma once

#include "core/aircraft.h"
#include "core/drawing_surface.h"
#include "core/stations.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarnel {

/// The look of a station's symbol: which of its facilities are on.
enum class SymbolImage : std::int16_t { none = 0, stationAndDme = 1, stationOnly = 2, dmeOnly = 3 };

/// A station on the chart: its symbol, its name label and the leader line between them.
struct StationSymbol {
    Area area;
    SymbolImage image = SymbolImage::none;
    bool visible = false;
    Line leader;
    Label name;
};

/// The radial that one instrument has set, as it lies on the chart.
struct RadialLines {
    Line course;
    Line reciprocal;
    Line borderLeft; ///< 10 degrees to either side: full deflection
    Line borderRight;
    Slot station = Slot::vor1; ///< that it belongs to
    double angle = 0; ///< degrees from the top of the chart, for the lettering along the line
    bool operator==(const RadialLines&) const = default;
};

struct LocalizerLines {
    Line centre;
    Line leftEdge;
    Line rightEdge;
    Line leftClosing;
    Line rightClosing;
    bool operator==(const LocalizerLines&) const = default;
};

struct AirplaneLines {
    Line fuselage;
    Line wing;
    Line tailplane;
};

struct SpeedVectorLines {
    Line air;
    Line wind;
    Line ground;
};

/// The line that the heading tool draws, with the two labels beside it.
struct HeadingLine {
    Line line;
    Label name;
    Label value;
};

/// The line along which the wind blows while it is drawn, its arrow head, and three labels.
struct WindLine {
    Line line;
    Line headLeft;
    Line headRight;
    Label name;
    Label direction;
    Label speed;
};

/// How a station that is dragged lies to another one.
struct StationBearing {
    Slot other = Slot::vor1;
    double distance = 0; ///< NM, to a tenth
    double bearing = 0;  ///< whole degrees from that one, 0 up to 360
    bool operator==(const StationBearing&) const = default;
};

/// `Picture1`: everything that stands on the chart, in twips.
struct ChartPicture {
    ChartPicture();

    DrawingSurface surface;
    double size = 6810; ///< width and height
    std::array<StationSymbol, slotCount> symbols;
    RadialLines radialsI2;
    RadialLines radialsI3;
    LocalizerLines localizer;
    AirplaneLines airplane;
    SpeedVectorLines speedVectors;
    HeadingLine heading;
    WindLine windLine;
    Label windLabel;                             ///< the wind beside the airplane
    Wind windTold;                               ///< what it says
    Label stationReadout;                        ///< of a station that is dragged
    std::vector<StationBearing> stationBearings; ///< what it says, one a line
    Label help;
    double milesPer500Twips = 2; ///< the scale label
    DotLayer trace{surface};
    DotLayer ahead{surface}; ///< where turns to either side would lead
};

/// The colours of what stands on the chart, 0xBBGGRR.
namespace chartColour {
constexpr Colour first = 0x2E26C4;  ///< stations 1: red
constexpr Colour second = 0xB8561F; ///< stations 2: blue
constexpr Colour localizer = 0x5C7A3D;
constexpr Colour ink = 0x28211B;
constexpr Colour airVector = 0x4A3F36;
constexpr Colour groundVector = 0x9C8000;
constexpr Colour windVector = 0x005AB0;
constexpr Colour track = 0xC3A300; ///< cyan, darkened to stand on white
constexpr Colour ahead = 0x1E5A96; ///< brown
} // namespace chartColour

/// The colour of a station slot.
[[nodiscard]] Colour slotColour(std::size_t slot);

} // namespace tarnel
