#include "authoring/course_builder.h"

#include "authoring/comment_check.h"
#include "authoring/course_check.h"
#include "authoring/session_scale.h"
#include "exercises/study_file.h"
#include "persistence/session_file.h"

#include <cmath>

namespace tarnel {

namespace {

/// The name of a question's session but for its end: its kind and its number from 1 on.
std::string sessionStem(const CourseSource& source, std::size_t index) {
    const std::string number = std::to_string(index + 1);
    return std::string(source.kind->word) + (number.size() < 2 ? "0" : "") + number;
}

FlownSituation flySituation(const CourseSource& source, const Situation& situation,
                            const std::string& applicationFolder) {
    FlightPlan plan = source.questions->start(situation, source.chartOf(situation));
    plan.file = source.file;
    plan.chartLine = situation.line;
    ScriptedFlight flight(std::move(plan), englishTable(), applicationFolder);
    Pilot pilot(flight, source.chartOf(situation));
    source.questions->solve(pilot, situation);
    return {situation, source.chartOf(situation), pilot.rows(), pilot.said(),
            flight.form().UserControl11.sessionBytes()};
}

/// The stations that a question is about.
std::vector<GeoPosition> stationsOf(const CourseSource& source, const FlownSituation& flown) {
    std::vector<GeoPosition> stations = {flown.chart.position(flown.situation.station)};
    if (source.kind->type == ExerciseType::orientation)
        stations.push_back(flown.chart.position(flown.situation.other));
    return stations;
}

/// As exactly as anyone sees: a metre on the chart, a thousandth of a degree of heading.
void shorten(std::vector<Sample>& samples) {
    const auto shortened = [](double value, double unit) {
        return std::round(value * unit) / unit;
    };
    for (Sample& sample : samples) {
        sample.traceLat = shortened(sample.traceLat, 1e5);
        sample.traceLon = shortened(sample.traceLon, 1e5);
        sample.traceHeading = shortened(sample.traceHeading, 1e3);
    }
}

/// A flight with its comments in a language.
std::string sessionIn(const std::string& flown, const SessionView& view,
                      const std::vector<SaidComment>& said, Language language) {
    SessionFile session = readSession(flown);
    for (std::size_t i = 0; i < said.size(); ++i)
        session.comments.at(i) = said[i].text.in(language);
    shorten(session.samples);
    session.mapScaleTwips = view.scale;
    session.mapCenterSelect = view.centre;
    return writeSession(session, std::nullopt);
}

} // namespace

BuiltCourse buildCourse(const CourseSource& source, const std::string& applicationFolder) {
    BuiltCourse built;
    CourseCheck check(source, built.findings);
    const auto type = static_cast<int>(source.kind->type);
    std::string study[std::size(bothLanguages)];
    for (std::size_t i = 0; i < source.situations.size(); ++i) {
        const Situation& situation = source.situations[i];
        try {
            const FlownSituation flown = flySituation(source, situation, applicationFolder);
            const BuiltQuestion question = questionOf(source, flown);
            check.add(question);
            const SessionView view = questionView(flown.rows, stationsOf(source, flown));
            for (const Language language : bothLanguages) {
                const std::string session = filePrefix(language) + sessionStem(source, i) + ".ts";
                StudyRecord record = question.in(language);
                record[StudyColumn::sessionName] = session;
                study[static_cast<std::size_t>(language)] += writeStudyRecord(record, type);
                built.files.push_back(
                    {"sessions/" + session, sessionIn(flown.session, view, flown.said, language)});
            }
        } catch (const LostPilot& lost) {
            built.findings.push_back(
                {situation.line, "the solution needs " + std::string(lost.what())});
        }
    }
    for (const Language language : bothLanguages) {
        const bool german = language == Language::german;
        const std::string name = studyFileNames(*exerciseOf(type), german).front();
        built.files.push_back({"study/" + name, study[static_cast<std::size_t>(language)]});
    }
    check.finish();
    return built;
}

BuiltCourse buildFlight(const Route& route, const std::string& applicationFolder) {
    BuiltCourse built;
    ScriptedFlight flight(route.start, englishTable(), applicationFolder);
    Pilot pilot(flight, route.chart);
    std::vector<int> lines; // of the comments
    for (const RouteLeg& leg : route.legs) {
        try {
            flyLeg(pilot, leg);
            lines.resize(pilot.said().size(), leg.line);
        } catch (const LostPilot& lost) {
            built.findings.push_back({leg.line, "the flight needs " + std::string(lost.what())});
            return built;
        }
    }
    const std::string session = flight.form().UserControl11.sessionBytes();
    const std::vector<Sample> samples = readSession(session).samples;
    checkComments({route.chart, pilot.rows(), samples, pilot.said()}, lines, built.findings);
    const SessionView view = sessionView(pilot.rows(), route.chart);
    for (const Language language : bothLanguages)
        built.files.push_back({"sessions/" + filePrefix(language) + route.name + ".ts",
                               sessionIn(session, view, pilot.said(), language)});
    return built;
}

} // namespace tarnel
