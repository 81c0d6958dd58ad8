// The sections of the handbook name their numbers in comments, which no reader sees:
//   <!-- check wind 195/20 course 150 tas 120: across 14.1 along 14.1 correction 6.8 speed 105 -->
//   <!-- check hold heading 220 inbound 90 right: offset 240 -->
//   <!-- check lead arc 12 tas 120: degrees 3 -->
//   <!-- check slant height 6000 ground 0: dme 1.0 -->
// Each is recomputed, as exactly as it is given, and has to stand in the section.

#include "core/holding_answer.h"
#include "core/radios.h"
#include "core/wind_triangle.h"
#include "core/wind_turn.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <set>
#include <sstream>
#include <string>

namespace tarnel {
namespace {

/// The given numbers of a check, by the word before each; "wind" as it is written.
using Given = std::map<std::string, std::string>;

double number(const Given& given, const char* name) {
    return std::stod(given.at(name));
}

std::map<std::string, double> windNumbers(const Given& given) {
    const std::string wind = given.at("wind");
    const std::size_t slash = wind.find('/');
    const Wind blowing{std::stod(wind),
                       static_cast<std::int16_t>(std::stoi(wind.substr(slash + 1)))};
    const WindTriangle triangle =
        windTriangle(blowing, number(given, "course"), number(given, "tas"));
    return {{"across", std::abs(triangle.fromRight)},
            {"along", std::abs(triangle.head)},
            {"correction", std::abs(triangle.correction)},
            {"speed", triangle.groundSpeed},
            {"outbound", outboundSeconds(triangle)}};
}

std::map<std::string, double> holdNumbers(const Given& given) {
    std::string turns = given.contains("right") ? "Standard" : "left";
    std::string entry;
    std::string firstTurn;
    std::int16_t outbound = 0;
    std::int16_t offset = 0;
    std::int16_t abeam = 0;
    std::int16_t first = 0;
    findHoldingAnswer(static_cast<std::int16_t>(number(given, "heading")),
                      static_cast<std::int16_t>(number(given, "inbound")), turns, entry, outbound,
                      offset, abeam, first, firstTurn);
    return {{entry, first == 0 ? 360 : first}};
}

/// As many degrees before a radial a turn by 90 degrees begins, from an arc onto it.
std::map<std::string, double> leadNumbers(const Given& given) {
    const PlaneOffset turned = turnInWind({}, number(given, "tas"), 0, 90).back();
    const double degrees = std::asin(turned.north / number(given, "arc")) * 180 / std::numbers::pi;
    return {{"degrees", degrees}};
}

std::map<std::string, double> slantNumbers(const Given& given) {
    Stations stations = defaultStations();
    stations.front().place = {};
    Aircraft aircraft;
    RadioInputs inputs;
    aircraft.place = {};
    aircraft.place.wide.x = number(given, "ground") * inputs.mapScaleTwips;
    inputs.altitude = number(given, "height");
    return {{"dme", measureRadios(stations, aircraft, inputs).dme.front()}};
}

struct Check {
    std::string line; ///< as it is written
    std::string kind; ///< its first word
    Given given;
    std::map<std::string, std::string> expected; ///< numbers as they are written
};

Given wordPairs(const std::string& text) {
    Given pairs;
    std::istringstream words(text);
    for (std::string name, value; words >> name;) {
        if (name != "right" && name != "left")
            words >> value;
        pairs[name] = value;
    }
    return pairs;
}

std::vector<Check> checksIn(const std::string& text) {
    static const std::string begin = "<!-- check ";
    std::vector<Check> checks;
    for (std::size_t at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        at += begin.size();
        const std::string line = text.substr(at, text.find(" -->", at) - at);
        const std::size_t colon = line.find(':');
        const std::string kind = line.substr(0, line.find(' '));
        // The wind itself stands behind that word, as a value does.
        const std::size_t given = kind == "wind" ? 0 : kind.size();
        checks.push_back({line, kind, wordPairs(line.substr(given, colon - given)),
                          wordPairs(line.substr(colon + 1))});
    }
    return checks;
}

std::map<std::string, double> computed(const Check& check) {
    if (check.kind == "wind")
        return windNumbers(check.given);
    if (check.kind == "hold")
        return holdNumbers(check.given);
    return check.kind == "lead" ? leadNumbers(check.given) : slantNumbers(check.given);
}

/// Half of the last digit that is given.
double exactness(const std::string& written) {
    const std::size_t point = written.find('.');
    const int places = point == std::string::npos ? 0 : int(written.size() - point - 1);
    return 0.5 * std::pow(10, -places) + 1e-9;
}

bool stands(const std::string& text, std::string written, bool german) {
    if (german)
        std::replace(written.begin(), written.end(), '.', ',');
    for (std::size_t at = text.find(written); at != std::string::npos;
         at = text.find(written, at + 1)) {
        const auto isDigit = [&](std::size_t i) { return i < text.size() && isdigit(text[i]); };
        if (!isDigit(at - 1) && !isDigit(at + written.size()))
            return true;
    }
    return false;
}

TEST(BookNumbers, AreThoseOfTheTrainer) {
    std::map<std::string, std::multiset<std::string>> bySection[2];
    for (const auto& file : std::filesystem::directory_iterator(TARNEL_BOOK_FOLDER)) {
        const std::string name = file.path().filename().string();
        const bool german = name.find(".de.") != std::string::npos;
        std::stringstream content;
        content << std::ifstream(file.path()).rdbuf();
        const std::string text = content.str();
        const std::string words = text.substr(0, text.find("<!-- check "));
        for (const Check& check : checksIn(text)) {
            SCOPED_TRACE(name + ": " + check.line);
            bySection[german][name.substr(0, name.find('.'))].insert(check.line);
            const auto values = computed(check);
            for (const auto& [what, written] : check.expected) {
                ASSERT_TRUE(values.contains(what)) << what << " is not what comes out";
                EXPECT_NEAR(values.at(what), std::stod(written), exactness(written)) << what;
                EXPECT_TRUE(stands(words, written, german)) << written << " is not in the text";
            }
        }
    }
    EXPECT_EQ(bySection[0], bySection[1]) << "the languages check the same";
    EXPECT_GE(bySection[0].size(), 8U);
}

} // namespace
} // namespace tarnel
