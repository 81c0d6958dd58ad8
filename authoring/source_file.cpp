#include "authoring/source_file.h"

#include "authoring/chart_source.h"
#include "flights/plan_table.h"

namespace tarnel {

BuiltCourse buildSource(std::string_view text, const std::string& file, const ChartShelf& charts,
                        const std::string& applicationFolder) {
    if (isChartSource(text, file))
        return {buildCharts(text, file), {}};
    const PlanTable root = PlanTable::parse(text, file);
    if (root.lineOf("flight") > 0)
        return buildFlight(readRoute(text, file, charts), applicationFolder);
    return buildCourse(readCourse(text, file, charts), applicationFolder);
}

} // namespace tarnel
