#include "navdata/navaid_fields.h"

#include "core/number_text.h"
#include "core/plain_text.h"
#include "core/stations.h"
#include "persistence/text_encoding.h"

#include <algorithm>

namespace tarnel {

namespace {

struct Range {
    double least;
    double most;
};

constexpr Range vhf{108000, 118000};
constexpr Range mediumWave{100, 1999};

double within(Range range, double value, NavField expected) {
    if (!(value >= range.least && value <= range.most))
        throw expected;
    return value;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

} // namespace

double navNumber(std::string_view field, NavField expected) {
    const auto number = parseNumber(field);
    if (!number)
        throw expected;
    return *number;
}

GeoPosition navPosition(std::string_view latitude, std::string_view longitude) {
    const double north = navNumber(latitude, NavField::latitude);
    const double east = navNumber(longitude, NavField::longitude);
    return {within({-90, 90}, north, NavField::latitude),
            within({-180, 180}, east, NavField::longitude)};
}

double navFrequency(std::string_view field, double unit, NavaidKind kind) {
    return within(kind == NavaidKind::beacon ? mediumWave : vhf,
                  unit * navNumber(field, NavField::frequency), NavField::frequency);
}

std::string navName(std::string_view field) {
    constexpr std::size_t longest = 80;
    std::string name(firstCharacters(trimmed(field), longest));
    std::ranges::replace_if(name, isControl, ' ');
    return name;
}

std::string navIdentifier(std::string_view field) {
    const std::string_view text = trimmed(field);
    if (text.empty() || characterCount(text) > longestStationText ||
        text.find('@') != std::string_view::npos || std::ranges::any_of(text, isControl))
        throw NavField::identifier;
    return std::string(text);
}

void leaveOut(NavData& data, int line, NavField expected) {
    ++data.wrongRows;
    if (!data.firstWrong)
        data.firstWrong = NavProblem{line, expected};
}

} // namespace tarnel
