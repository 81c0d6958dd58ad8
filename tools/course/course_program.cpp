#include "tools/course/course_program.h"

#include "authoring/chart_source.h"
#include "authoring/source_file.h"
#include "core/run_time_error.h"
#include "flights/plan_bounds.h"
#include "flights/plan_error.h"
#include "persistence/file_bytes.h"
#include "persistence/save_file.h"
#include "persistence/user_data.h"
#include "shell/application_folder.h"
#include "strings/cause_text.h"
#include "tools/course/options.h"
#include "tools/course/print_command.h"
#include "tools/output/tool_run.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace tarnel {

namespace {

constexpr auto usage =
    "Usage: tarnel-course build SOURCE... [--out FOLDER]\n"
    "       tarnel-course check SOURCE...\n"
    "       tarnel-course print SOURCE [--out FILE] [--language de|en]\n"
    "Makes exercises of courses: flies each situation, words its questions in German and English,\n"
    "and proves the answers. A source of charts makes these.\n"
    "\n"
    "  build         write the study files and sessions\n"
    "  check         only tell what is wrong\n"
    "  print         write the questions as a PDF, a page each, with the solutions at the end;\n"
    "                English, and beside the source unless told otherwise\n"
    "  --out FOLDER  where to; it gets the folders study, sessions and maps. Without it the\n"
    "                course is in the trainer's menu from then on (Exercises, Own courses), by\n"
    "                the name of the folder in which SOURCE lies\n"
    "  --help        this text\n";

std::string readSource(const std::string& file) {
    try {
        return readFileBytes(file, largestPlan);
    } catch (const RunTimeError& error) {
        throw PlanError(file, 0,
                        "a course that can be read: " +
                            std::string(causeText(englishTable(), error.cause())));
    }
}

/// The folder of the course that is made of a source: without one that is given, among the user's
/// own courses, by the name of the source's folder.
std::string courseFolder(const CourseOptions& options, const std::string& source) {
    if (!options.out.empty())
        return options.out;
    const std::filesystem::path folder = std::filesystem::weakly_canonical(source).parent_path();
    const std::string name = folder.filename().string();
    if (options.command == CourseCommand::build && (name.empty() || name.starts_with('.')))
        throw UsageError("a course can't have the name of the folder " + folder.string() +
                         "; give --out");
    return userCourses() + "/" + name;
}

/// Tells what was found. False if any of it must not stand.
bool tell(const std::string& source, const SourceFindings& findings) {
    bool good = true;
    for (const SourceFinding& finding : findings) {
        good = good && finding.mayStand;
        std::cerr << source;
        if (finding.line > 0)
            std::cerr << ':' << finding.line;
        std::cerr << ": " << (finding.mayStand ? "note: " : "") << finding.text << '\n';
    }
    return good;
}

/// Writes what has changed, so that what has not stays as old as it is.
void write(const std::vector<BuiltFile>& files, const std::filesystem::path& folder) {
    for (const BuiltFile& file : files) {
        const std::filesystem::path path = folder / file.path;
        std::filesystem::create_directories(path.parent_path());
        constexpr std::size_t more = std::size_t{8} << 20;
        if (!std::filesystem::exists(path) || readFileBytes(path.string(), more) != file.bytes)
            saveFileBytes(path.string(), file.bytes);
    }
}

/// Courses name charts, so these are made first. A source that can't be read is told in its turn.
std::vector<std::string> chartsFirst(std::vector<std::string> files) {
    std::stable_partition(files.begin(), files.end(), [](const std::string& file) {
        try {
            return isChartSource(readSource(file), file);
        } catch (const PlanError&) {
            return false;
        }
    });
    return files;
}

ExitStatus print(const CourseOptions& options) {
    const std::string data = applicationFolder();
    const std::string& file = options.sources.front();
    const ChartShelf charts({courseFolder(options, file) + "/maps", data + "/default/maps", data});
    const CourseSource source = readCourse(readSource(file), file, charts);
    const std::string beside = std::filesystem::path(file).replace_extension(".pdf").string();
    printCourse(source, options.german ? Language::german : Language::english, data,
                options.out.empty() ? beside : options.out);
    return done;
}

ExitStatus make(const CourseOptions& options) {
    const std::string data = applicationFolder();
    ExitStatus status = done;
    for (const std::string& file : chartsFirst(options.sources)) {
        try {
            const std::string out = courseFolder(options, file);
            const ChartShelf charts({out + "/maps", data + "/default/maps", data});
            const BuiltCourse course = buildSource(readSource(file), file, charts, data);
            if (!tell(file, course.findings))
                status = inputIsWrong;
            else if (options.command == CourseCommand::build)
                write(course.files, out);
        } catch (const PlanError& error) {
            std::cerr << error.what() << '\n';
            status = inputIsWrong;
        }
    }
    return status;
}

ExitStatus run(const CourseOptions& options) {
    if (options.command == CourseCommand::help) {
        std::cout << usage;
        return done;
    }
    return options.command == CourseCommand::print ? print(options) : make(options);
}

} // namespace

int runCourse(int argc, char** argv) {
    return runTool("tarnel-course", usage, [&] {
        return run(readCourseOptions({argv + 1, argv + argc}));
    });
}

} // namespace tarnel
