#pragma once

#include "core/stations.h"
#include "strings/text.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

/// Where a station's label stands about its symbol.
struct LabelPlace {
    Text name;
    std::int16_t offsetX; ///< twips
    std::int16_t offsetY;
};

constexpr std::array<LabelPlace, 4> labelPlaces = {{{Text::editorLabelAbove, -200, -555},
                                                    {Text::editorLabelRight, 200, -190},
                                                    {Text::editorLabelLeft, -700, -190},
                                                    {Text::editorLabelBelow, -200, 135}}};

/// What the station editor shows of a station and takes back.
struct StationEdit {
    Slot slot = Slot::vor1;
    std::string name;
    std::string frequency;
    bool stationOn = true;
    bool dmeOn = true;
    int labelPlace = 0; ///< into `labelPlaces`
};

/// The title of the editor for a station.
[[nodiscard]] Text editorTitle(Slot slot);
/// The mask of its frequency: "###.##", for NDBs "###".
[[nodiscard]] std::string_view frequencyMask(Slot slot);
/// Whether `frequency` has a digit at each "#" of `mask` and its other characters elsewhere.
[[nodiscard]] bool fitsMask(std::string_view frequency, std::string_view mask);

} // namespace tarnel
