#pragma once

#include <sstream>
#include <string>
#include <vector>

namespace tarnel {

/// The lines of a text that has a bar between them.
inline std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream rest(text);
    for (std::string line; std::getline(rest, line, '|');)
        lines.push_back(line);
    return lines;
}

/// A plain chart, its 31 lines without their ends.
inline std::vector<std::string> sampleChartLines() {
    return linesOf(":v1id:,ALB@u|:v1fr:,112.30|:v2id:,BRK@r|:v2fr:,108.40|"
                   ":n1id:,CA@l|:n1fr:,338|:n2id:,DU@d|:n2fr:,369|:loid:,ILS EAST|:lofr:,108.70|"
                   ":n1:,2|:n2:,5|:n3:,1|:n4:,2|:n1:,4|:mc:,1|:ms:,1.5|48.25|11.5|0|"
                   "11.75|48.5|10.5|48.125|-0.5|47.75|151.25|-33.5|11.6|48.35|83");
}

/// The first `count` lines as a file.
inline std::string joinLines(const std::vector<std::string>& lines, std::size_t count,
                             const std::string& end = "\r\n") {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += lines[i] + end;
    return text;
}

/// The sample chart with line `number` (from 1) replaced.
inline std::string chartWith(std::size_t number, const std::string& line) {
    std::vector<std::string> lines = sampleChartLines();
    lines[number - 1] = line;
    return joinLines(lines, lines.size());
}

} // namespace tarnel
