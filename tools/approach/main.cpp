// tarnel-approach: the approach charts of the menu, each drawn from its session and a source.

#include "approach/plan_framing.h"
#include "core/run_time_error.h"
#include "flights/plan_error.h"
#include "persistence/file_bytes.h"
#include "shell/application_folder.h"
#include "shell/documents.h"
#include "strings/cause_text.h"
#include "strings/string_table.h"
#include "tools/approach/approach_sheet.h"
#include "tools/output/output_file.h"
#include "tools/output/tool_run.h"

#include <QGuiApplication>

#include <algorithm>
#include <iostream>

namespace {

using namespace tarnel;

constexpr auto usage = "Usage: tarnel-approach SOURCE... --out FOLDER\n"
                       "Draws approach charts under the names by which the menu opens them.\n"
                       "\n"
                       "  --help        this text\n";

constexpr std::size_t largestSource = 1 << 16;

std::string readInput(const std::string& path, std::size_t limit) {
    try {
        return readFileBytes(path, limit);
    } catch (const RunTimeError& error) {
        throw PlanError(path, 0,
                        "a file that can be read: " +
                            std::string(causeText(englishTable(), error.cause())));
    }
}

SessionFile readSessionOf(const std::string& text, const std::string& file) {
    const std::string path =
        applicationFolder() + "/default/sessions/" + sessionOf(text, file) + ".ts";
    SessionFile session = readSession(readInput(path, largestSession));
    if (session.samples.empty())
        throw PlanError(file, 0, "a session with a flight: " + path);
    return session;
}

std::string documentOf(const ApproachSource& source) {
    const auto charts = approachCharts();
    const auto found = std::find_if(charts.begin(), charts.end(), [&](const ApproachChart& chart) {
        return chart.session == source.session + ".ts";
    });
    if (found == charts.end())
        throw PlanError(source.file, 0, "the session of a chart in the menu");
    return found->document;
}

void drawChart(const std::string& file, const std::string& folder) {
    using namespace sheet_parts;
    const std::string text = readInput(file, largestSource);
    const SessionFile session = readSessionOf(text, file);
    const AuthoredChart chart = chartOf(session);
    const ApproachSource source = readApproach(text, file, chart);
    const PlanFraming framing =
        framePlan(source, chart, session,
                  {plan.width() * twips, plan.height() * twips, 165 * twips, 80 * twips});
    const ChartPlane plane(session, framing.twipsPerMile, framing.centre);
    const ApproachPlan way = planOf(source, chart, plane);
    OutputFile output(folder + "/" + documentOf(source));
    output.write(pdfOf({source, chart, plane, way}).toStdString());
    output.close();
}

ExitStatus run(const std::vector<std::string>& words) {
    if (words == std::vector<std::string>{"--help"}) {
        std::cout << usage;
        return done;
    }
    if (words.size() < 3 || words[words.size() - 2] != "--out")
        throw UsageError("sources and --out are needed");
    for (std::size_t i = 0; i + 2 < words.size(); ++i)
        drawChart(words[i], words.back());
    return done;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a sheet comes out the same on every desktop
    const QGuiApplication application(argc, argv);
    return runTool("tarnel-approach", usage, [&] { return run({argv + 1, argv + argc}); });
}
