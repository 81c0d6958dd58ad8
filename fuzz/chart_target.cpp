#include "fuzz_target.h"
#include "persistence/chart_file.h"

#include <cmath>

using namespace tarnel;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr int key = 7;
    const ChartFile chart = readChart(asText(data, size));
    if (chart.aircraft)
        require(std::abs(chart.aircraft->latitude) <= 89);
    const std::string saved = writeChart(chart, {});
    const ChartFile again = readChart(saved);
    require(!again.problem);
    require(writeChart(again, {}) == saved);
    require(writeChart(readChart(writeChart(chart, key)), {}) == saved);
    return 0;
}
