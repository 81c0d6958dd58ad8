#pragma once

#include "core/recording.h"
#include "support/sample_chart.h"

#include <string>
#include <vector>

namespace tarnel {

/// The lines of a session with two comments, before its samples.
inline std::vector<std::string> sessionHeadLines() {
    return linesOf(":c:Intercept, then \"turn\"|:c:---|"
                   ":v1id:,ALB@u|:v1fr:,112.30|:v2id:,BRK@r|:v2fr:,108.40|"
                   ":n1id:,CA@l|:n1fr:,338|:n2id:,DU@d|:n2fr:,369|:loid:,ILS|:lofr:,108.70|"
                   ":n1:,2|:n2:,5|:n3:,1|:n4:,2|:n1:,4|:mc:,2|:ms:,2");
}

/// The 41 lines of a sample in which every field differs, and the last line.
inline std::vector<std::string> sampleLines() {
    return {"48.25", "11.5",  "271.125", "1",    "2",      "120",  "-3",     "4",      "5",
            "6",     "11.75", "48.5",    "10.5", "48.125", "-0.5", "47",     "151.25", "-33.5",
            "11.6",  "48.35", "83",      "250",  "15",     "41.5", "402.25", "3",      "4",
            "7",     "8",     "9",       "10",   "11",     "12",   "13",     "14",     "16",
            "17",    "18",    "19",      "1",    "---"};
}

/// The sample of these lines, field by field in its order.
inline Sample sampleOfLines() {
    constexpr std::array<GeoPosition, slotCount> stations{
        {{48.5, 11.75}, {48.125, 10.5}, {47, -0.5}, {-33.5, 151.25}, {48.35, 11.6}}};
    return {48.25, 11.5, 271.125, 1, 2, 120, -3, 4,  5,  6,  stations, 83, 250, 15, 41.5, 402.25,
            3,     4,    7,       8, 9, 10,  11, 12, 13, 14, 16,       17, 18,  19, 1};
}

/// A session of `count` equal samples.
inline std::vector<std::string> sessionLines(std::size_t count) {
    std::vector<std::string> lines = sessionHeadLines();
    const std::vector<std::string> sample = sampleLines();
    for (std::size_t i = 0; i < count; ++i)
        lines.insert(lines.end(), sample.begin(), sample.end());
    return lines;
}

} // namespace tarnel
