#include "fuzz_target.h"
#include "navdata/anywhere_chart.h"
#include "navdata/nav_data.h"

using namespace tarnel;

namespace {

/// Whatever was read can be searched, and proposed for a chart that reads back.
void check(const NavData& data) {
    constexpr double paper = 6810;
    require(!data.refused || (data.navaids.empty() && data.refused->line > 0));
    require((data.wrongRows > 0) == data.firstWrong.has_value());
    if (data.navaids.empty())
        return;
    const NavaidIndex index(data.navaids);
    require(!index.search(index[0].identifier, 1).empty());
    const auto chart = chartOf(index, proposeStations(index, index[0].position), paper);
    require(!chart || !readChart(writeChart(*chart, {}, AircraftLongitude::asItIs)).problem);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    check(readNavData(asText(data, size)));
    check(readRunways(asText(data, size)));
    return 0;
}
