#include "tools/fly/fly_program.h"

#include "flights/flight.h"
#include "flights/flight_csv.h"
#include "flights/flight_debrief.h"
#include "flights/flight_summary.h"
#include "flights/plan_error.h"
#include "flights/plan_reader.h"
#include "shell/application_folder.h"
#include "strings/string_table.h"
#include "tools/fly/options.h"
#include "tools/fly/picture_output.h"
#include "tools/output/output_file.h"
#include "tools/output/tool_run.h"
#include "tracks/flown_track.h"
#include "tracks/track_writer.h"

#include <filesystem>
#include <iostream>
#include <optional>
#include <vector>

namespace tarnel {

namespace {

constexpr auto usage =
    "Usage: tarnel-fly PLAN [--csv FILE] [--session FILE] [--track FILE]...\n"
    "                  [--picture FILE] [--debrief] [--until SECONDS]\n"
    "                  [--language de|en]\n"
    "Flies a plan without showing a window.\n"
    "\n"
    "  --csv FILE        write a table with a line for each tick\n"
    "  --session FILE    write the flight as a session that the trainer opens\n"
    "  --track FILE      write the flight for other programs, as its name ends: .gpx, .kml, .csv\n"
    "  --picture FILE    write the window as it stands at the end, such as window.png\n"
    "  --debrief         print what was right and wrong, by the plan's [task], worst first\n"
    "  --until SECONDS   end the flight there, if the plan does not end earlier\n"
    "  --language de|en  of the picture and the debrief; English without it\n"
    "  --help            this text\n"
    "\n"
    "FILE may be - for standard output, unless it is a track, and none of the files that are read. "
    "Without an output a summary is printed.\n";

void flyTo(ScriptedFlight& flight, const FlyOptions& options) {
    std::optional<OutputFile> table;
    if (options.csv) {
        table.emplace(*options.csv);
        table->write(flightCsvHeader());
    }
    flight.fly(options.until.value_or(flight.plan().seconds), [&] {
        if (table)
            table->write(flightCsvLine(presentRow(flight)));
    });
    if (table)
        table->close();
}

void writeSession(UserControl2& simulation, const std::string& file) {
    OutputFile output(file);
    output.write(simulation.sessionBytes());
    output.close();
}

/// The same plan gives the same bytes each time, so its flight begins at a fixed moment: the first
/// of 2000.
void writeTracks(UserControl2& simulation, const FlyOptions& options) {
    constexpr std::int64_t start = 946'684'800;
    const Track track = flownTrack(simulation.session().samples,
                                   std::filesystem::path(options.plan).stem().string(), start);
    for (const std::string& file : options.tracks) {
        OutputFile output(file);
        output.write(writeTrack(track, formatOf(file).value_or(TrackFormat::gpx)));
        output.close();
    }
}

/// Refuses an output that is one of the inputs or another output, before anything is flown.
void checkOutputs(const FlyOptions& options, const FlightPlan& plan) {
    std::vector<std::string> taken = {options.plan, applicationFolder() + "/default.map"};
    if (plan.chart)
        taken.push_back(*plan.chart);
    std::vector<std::string> outputs = options.tracks;
    for (const auto& output : {options.csv, options.session, options.picture})
        if (output)
            outputs.push_back(*output);
    for (const std::string& output : outputs) {
        if (isStream(output))
            continue;
        for (const std::string& file : taken)
            if (isSameFile(output, file))
                throw OutputError(output, "it is read or written in the same call");
        taken.push_back(output);
    }
}

ExitStatus run(const FlyOptions& options) {
    if (options.help) {
        std::cout << usage;
        return done;
    }
    const StringTable& texts = options.german ? germanTable() : englishTable();
    const FlightPlan plan = readPlanFile(options.plan);
    checkOutputs(options, plan);
    if (options.debrief && !plan.task)
        throw PlanError(plan.file, 0, "a table [task] that says what the flight has to be");
    ScriptedFlight flight(plan, texts, applicationFolder());
    flyTo(flight, options);
    if (options.session)
        writeSession(flight.form().UserControl11, *options.session);
    writeTracks(flight.form().UserControl11, options);
    if (options.picture)
        writePicture(flight.form(), *options.picture);
    if (options.debrief)
        std::cout << flightDebrief(flight, texts) << std::flush;
    if (options.hasOutput())
        std::cerr << flightRemarks(flight);
    else
        std::cout << flightSummary(flight) << std::flush;
    return done;
}

} // namespace

int runFly(int argc, char** argv) {
    return runTool("tarnel-fly", usage, [&] { return run(readOptions({argv + 1, argv + argc})); });
}

} // namespace tarnel
