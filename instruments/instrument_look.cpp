#include "instruments/instrument_look.h"

#include "instruments/needle_role.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace tarnel {

namespace {

constexpr Colour white = 0xFFFFFF;
constexpr Colour yellow = 0x00DFFF;
constexpr Colour orange = 0x0080FF;
constexpr Colour green = 0x00FF00;
constexpr Colour lilac = 0xFFC0C0;
constexpr Colour triangleGrey = 0xE0E0E0;

constexpr std::array<const char*, 12> numerals{"N", "3",  "6",  "E", "12", "15",
                                               "S", "21", "24", "W", "30", "33"};

void style(DrawingSurface& surface, Line& line, Colour colour, int width, bool visible) {
    surface.set(line.colour, colour);
    surface.set(line.width, width);
    surface.show(line, visible);
}

template <std::size_t count>
void style(DrawingSurface& surface, std::array<Line, count>& lines, Colour colour, int width,
           bool visible) {
    for (Line& line : lines)
        style(surface, line, colour, width, visible);
}

Colour aircraftColour(InstrumentKind kind) {
    if (kind == InstrumentKind::adf)
        return 0x00C000;
    return kind == InstrumentKind::dg ? 0xEFF0E0 : orange;
}

void dressText(DrawingSurface& surface, Label& label, Colour back, double fontPoints,
               bool visible) {
    surface.set(label.colour, white);
    surface.set(label.back, back);
    surface.set(label.fontPoints, fontPoints);
    surface.show(label, visible);
}

void dressTexts(InstrumentPicture& picture, InstrumentKind kind) {
    DrawingSurface& surface = picture.surface;
    const double large = std::floor(picture.size / 320);
    const double small = std::floor(picture.size / 480);
    for (std::size_t i = 0; i < numerals.size(); ++i) {
        Label& numeral = picture.Label1[i];
        dressText(surface, numeral, white, large - 1, true);
        surface.set<std::string>(numeral.caption, numerals[i]);
        surface.set(numeral.centred, true);
    }
    dressText(surface, picture.Label2_3, white, small,
              kind == InstrumentKind::rmi || kind == InstrumentKind::hsi);
    dressText(surface, picture.Label2_4, 0x8080FF, large, kind == InstrumentKind::vor);
    dressText(surface, picture.Text1, 0x0000FF, small, false);
    surface.set<std::string>(picture.Text1.caption, "O\nF\nF");
}

void showKnobs(InstrumentPicture& picture, InstrumentKind kind) {
    using enum InstrumentKind;
    picture.surface.show(picture.Image2, hasHeadingBug(kind));
    picture.surface.show(picture.Image3, kind != dg);
}

} // namespace

void sizeInstrument(InstrumentPicture& picture, bool large) {
    DrawingSurface& surface = picture.surface;
    const double size = large ? largeInstrument : smallInstrument;
    surface.set(picture.size, size);
    surface.set(picture.Image1.area, Area{0, 0, size, size});
    surface.set(picture.Image2.area,
                large ? Area{5100, 5550, 1735, 1335} : Area{2800, 3000, 1035, 735});
    surface.set(picture.Image3.area, large ? Area{5280, 0, 1575, 1575} : Area{3000, 0, 975, 975});
    surface.set(picture.Image4.area, large ? Area{0, 5640, 1655, 1335} : Area{0, 3120, 975, 735});
}

void dressInstrument(InstrumentPicture& picture, InstrumentKind kind, bool large) {
    using enum InstrumentKind;
    DrawingSurface& surface = picture.surface;
    const int thin = large ? 2 : 1;
    const int medium = large ? 4 : 2;
    const int thick = large ? 4 : 3;
    const bool bug = hasHeadingBug(kind);
    const bool deviation = kind == vor || kind == hsi;

    surface.set(picture.kind, kind);
    surface.show(picture.Image1, true);
    style(surface, picture.Line1, white, thin, true);
    style(surface, picture.Line3to6, yellow, thick, kind == adf || kind == rmi || kind == hsi);
    style(surface, picture.Line7to12, kind == hsi ? lilac : green, medium, false);
    style(surface, picture.Line13, kind == hsi ? yellow : orange, thick, deviation);
    style(surface, picture.Line14, yellow, thick, kind == hsi);
    style(surface, picture.Line15, triangleGrey, medium, false);
    style(surface, picture.Line16, aircraftColour(kind), thick, kind != vor);
    style(surface, picture.Line17to23, orange, thin, bug);
    style(surface, picture.Line24, white, thin, kind == hsi);
    for (Round& dot : picture.Shape2)
        surface.show(dot, deviation);
    dressTexts(picture, kind);
    showKnobs(picture, kind);
}

} // namespace tarnel
