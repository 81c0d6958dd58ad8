#include "tools/instrument/input_range.h"

#include <algorithm>
#include <array>

namespace tarnel {

namespace {

struct NamedRange {
    std::string_view name;
    Range<double> range;
};

constexpr Range<double> anyAngle{-360, 360};
constexpr Range<double> circle{0, 360};
constexpr Range<double> yesOrNo{0, 1};
constexpr Range<double> oneOrTwo{1, 2};
/// -1 is a localizer at 0 NM, -31 one at 30 NM; 0 is a VOR.
constexpr Range<double> localizerDistance{-31, 0};

constexpr std::array ranges = {
    NamedRange{"Display", {1, 5}},
    NamedRange{"c_Large", yesOrNo},
    NamedRange{"c_NAVselect", oneOrTwo},
    NamedRange{"c_ADFCardselect", oneOrTwo},
    NamedRange{"c_DisableKnobs", yesOrNo},
    NamedRange{"c_RMIoverlayEN", yesOrNo},
    NamedRange{"c_LOCEN", localizerDistance},
    NamedRange{"c_OBS", circle},
    NamedRange{"c_OBS_x", circle},
    NamedRange{"c_MouseOBS", circle},
    NamedRange{"c_MouseOBS_HSI", circle},
    NamedRange{"c_HDGbug", circle},
    NamedRange{"BackStyle", yesOrNo},
    NamedRange{"Enabled", yesOrNo},
    NamedRange{"c_LabelEN1", yesOrNo},
    NamedRange{"c_LabelEN2", yesOrNo},
    NamedRange{"c_LabelEN3", yesOrNo},
    NamedRange{"c_LabelEN4", yesOrNo},
};

} // namespace

Range<double> inputRange(std::string_view property) {
    const auto* found = std::find_if(ranges.begin(), ranges.end(), [property](const auto& named) {
        return named.name == property;
    });
    return found == ranges.end() ? anyAngle : found->range;
}

bool isKnobFlag(std::string_view property) {
    return property == "c_HDGbugChange" || property == "c_OBSKnobchange";
}

} // namespace tarnel
