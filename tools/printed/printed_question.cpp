#include "tools/printed/printed_question.h"

#include "exercises/exercise_catalogue.h"
#include "flights/plan_error.h"
#include "shell/question_wind.h"
#include "tools/printed/sheet_chart.h"
#include "window/widgets/text_of.h"

namespace tarnel {

namespace {

void showAircraft(ScriptedFlight& flight, bool shown) {
    UserControl2& simulation = flight.form().UserControl11;
    simulation.c_AirplaneEN = static_cast<std::int16_t>(shown ? 1 : 0);
    simulation.c_TraceEN = static_cast<std::int16_t>(shown ? 1 : 0);
}

/// Where the aircraft was, moment by moment.
std::vector<GeoPosition> wayOf(const std::vector<FlightRow>& rows) {
    std::vector<GeoPosition> way;
    way.reserve(rows.size());
    for (const FlightRow& row : rows)
        way.push_back({row.latitude, row.longitude});
    return way;
}

/// As a reader expects it. The exercises store two ways with a plus around each, a dash before a
/// number that has no side, and minutes.seconds.
QString asPrinted(const std::string& solution, const StringTable& texts) {
    const QString text = QString::fromStdString(solution);
    if (text.startsWith('+'))
        return text.split('+', Qt::SkipEmptyParts).join(QStringLiteral(" / "));
    if (text.startsWith(QLatin1String("- ")))
        return text.mid(2);
    const QString time = ' ' + textOf(texts, Text::unitMinutesSeconds);
    return text.endsWith(time) ? text.chopped(time.size()).replace('.', ':') + " min" : text;
}

/// What the exercise takes as right, in the words that it offers if that is all there is to it.
QString solutionOf(const Exercise& exercise, int row, bool numbered, const StringTable& texts) {
    QStringList right;
    const std::vector<std::string> offers = exercise.offers(row);
    for (std::size_t i = 0; i < offers.size() && !numbered; ++i)
        if (exercise.isRight({row, static_cast<int>(i), {}}))
            right << QString::fromStdString(offers[i]);
    return right.isEmpty() ? asPrinted(exercise.solution(row), texts)
                           : right.join(QStringLiteral(" / "));
}

std::vector<PrintedQuestion::Row> rowsOf(const Exercise& exercise, PanelId panel,
                                         const StringTable& texts) {
    const auto& widgets = panelWidgets()[static_cast<std::size_t>(panel)].rows;
    std::vector<PrintedQuestion::Row> rows;
    for (int i = 0; i < exercise.rowCount(); ++i) {
        const RowWidgets& asked = widgets[static_cast<std::size_t>(i)];
        PrintedQuestion::Row row;
        row.prompt = QString::fromStdString(exercise.prompt(i));
        row.solution = solutionOf(exercise, i, !asked.entries.empty(), texts);
        for (const EntryWidgets& entry : asked.entries)
            row.units << textOf(texts, entry.unit);
        for (const std::string& offer : exercise.offers(i))
            if (!offer.empty() && offer != texts[Text::pleaseSelect] && offer != texts[Text::ok])
                row.offers << QString::fromStdString(offer);
        rows.push_back(std::move(row));
    }
    return rows;
}

/// Takes the questions of a course down, one after the other.
class Printing {
  public:
    Printing(const CourseSource& printed, Language in, const std::string& folder)
        : source(printed),
          language(in),
          texts(in == Language::german ? germanTable() : englishTable()),
          data(folder),
          kind(*exerciseOf(static_cast<int>(printed.kind->type))) {}

    [[nodiscard]] PrintedQuestion take(const Situation& situation);

  private:
    /// The stations that a question speaks of.
    [[nodiscard]] std::vector<GeoPosition> stationsOf(const Situation& situation) const {
        const AuthoredChart& chart = source.chartOf(situation);
        std::vector<GeoPosition> stations{chart.position(situation.station)};
        if (kind.askedOnChart)
            stations.push_back(chart.position(situation.other));
        return stations;
    }

    const CourseSource& source;
    Language language;
    const StringTable& texts;
    const std::string& data;
    const ExerciseKind& kind;
    QuestionDraw draw = QuestionDraw::ofChoices();
};

PrintedQuestion Printing::take(const Situation& situation) {
    FlightPlan plan = source.questions->start(situation, source.chartOf(situation));
    plan.file = source.file;
    plan.chartLine = situation.line;
    ScriptedFlight flight(std::move(plan), texts, data);
    Form1& form = flight.form();
    Pilot pilot(flight, source.chartOf(situation));
    PrintedQuestion question;
    while (pilot.rows().size() <= FlownSituation::askedTick)
        pilot.step();
    if (!kind.askedOnChart) {
        question.left = form.inst2.instrument.picture;
        question.right = form.inst3.instrument.picture;
    }
    showAircraft(flight, kind.askedOnChart);
    const GeoPosition asked{pilot.now().latitude, pilot.now().longitude};
    form.UserControl11.frameStations(kind.askedOnChart ? std::vector{asked}
                                                       : std::vector<GeoPosition>{});
    question.chart = sheetChart(form.UserControl11, texts, PrintedQuestion::chartUnits);
    showAircraft(flight, true);
    try {
        source.questions->solve(pilot, situation);
    } catch (const LostPilot& lost) {
        throw PlanError(source.file, situation.line, lost.what());
    }
    frameOnSheet(form.UserControl11, wayOf(pilot.rows()), stationsOf(situation));
    question.flown = sheetChart(form.UserControl11, texts, PrintedQuestion::solutionUnits);

    const auto exercise = kind.make(texts, draw);
    exercise->take(source.questions->ask(
        {situation, source.chartOf(situation), pilot.rows(), pilot.said(), {}}, language));
    question.task = QString::fromStdString(exercise->task()).simplified();
    question.known = QString::fromStdString(
        kind.type == ExerciseType::wind ? exercise->known()
                                        : questionWind(texts, situation.wind, situation.tas));
    question.rows = rowsOf(*exercise, kind.panel, texts);
    return question;
}

} // namespace

std::vector<PrintedQuestion> printedQuestions(const CourseSource& source, Language language,
                                              const std::string& applicationFolder) {
    Printing printing(source, language, applicationFolder);
    std::vector<PrintedQuestion> questions;
    questions.reserve(source.situations.size());
    for (const Situation& situation : source.situations)
        questions.push_back(printing.take(situation));
    return questions;
}

} // namespace tarnel
