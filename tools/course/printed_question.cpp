#include "tools/course/printed_question.h"

#include "exercises/exercise_catalogue.h"
#include "flights/plan_error.h"
#include "window/chart/chart_painter.h"
#include "window/dials/instrument_painter.h"

#include <QPainter>

namespace tarnel {

namespace {

constexpr int dialPixels = 520;
constexpr int chartPixels = 920;
constexpr double chartSide = 460; ///< logical pixels, for which its lettering is made

/// Paints what a trainer shows, without a window.
class TrainerPictures {
  public:
    TrainerPictures(const StringTable& table, const std::string& applicationFolder)
        : texts(table), pictures(QString::fromStdString(applicationFolder)), dials(pictures) {}

    [[nodiscard]] QImage dial(const UserControl_1& instrument) {
        QImage image(dialPixels, dialPixels, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        dials.paint(painter, instrument.picture, dialPixels);
        return image;
    }
    [[nodiscard]] QImage chart(const UserControl2& simulation) const {
        constexpr double ratio = chartPixels / chartSide;
        QImage image(chartPixels, chartPixels, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        ChartPainter(simulation, texts).paint(painter, chartSide, ratio);
        return image;
    }

  private:
    const StringTable& texts;
    PictureStore pictures;
    InstrumentPainter dials;
};

void showAircraft(ScriptedFlight& flight, bool shown) {
    UserControl2& simulation = flight.form().UserControl11;
    simulation.c_AirplaneEN = static_cast<std::int16_t>(shown ? 1 : 0);
    simulation.c_TraceEN = static_cast<std::int16_t>(shown ? 1 : 0);
}

std::vector<GeoPosition> placesOf(const std::vector<FlightRow>& rows) {
    std::vector<GeoPosition> places;
    places.reserve(rows.size());
    for (const FlightRow& row : rows)
        places.push_back({row.latitude, row.longitude});
    return places;
}

/// Two ways are stored with a plus around each.
QString asPrinted(const std::string& solution) {
    const QString text = QString::fromStdString(solution);
    return text.startsWith('+') ? text.split('+', Qt::SkipEmptyParts).join(QStringLiteral(" / "))
                                : text;
}

std::vector<PrintedQuestion::Row> rowsOf(const Exercise& exercise, const StringTable& texts) {
    std::vector<PrintedQuestion::Row> rows;
    for (int i = 0; i < exercise.rowCount(); ++i) {
        PrintedQuestion::Row row{
            QString::fromStdString(exercise.prompt(i)), {}, asPrinted(exercise.solution(i))};
        for (const std::string& offer : exercise.offers(i))
            if (!offer.empty() && offer != texts[Text::pleaseSelect])
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
          pictures(texts, folder),
          kind(*exerciseOf(static_cast<int>(printed.kind->type))),
          draw([] { return std::uint32_t{1}; }) {
        draw.shuffle(static_cast<int>(printed.situations.size()) - 1);
    }

    [[nodiscard]] PrintedQuestion take(const Situation& situation);

  private:
    const CourseSource& source;
    Language language;
    const StringTable& texts;
    const std::string& data;
    TrainerPictures pictures;
    const ExerciseKind& kind;
    QuestionDraw draw;
};

PrintedQuestion Printing::take(const Situation& situation) {
    FlightPlan plan = source.questions->start(situation, source.chart);
    plan.file = source.file;
    plan.chartLine = situation.line;
    ScriptedFlight flight(std::move(plan), texts, data);
    Form1& form = flight.form();
    Pilot pilot(flight, source.chart);
    PrintedQuestion question;
    while (pilot.rows().size() <= FlownSituation::askedTick)
        pilot.step();
    if (!kind.askedOnChart) {
        question.left = pictures.dial(form.inst2.instrument);
        question.right = pictures.dial(form.inst3.instrument);
    }
    showAircraft(flight, kind.askedOnChart);
    const auto place = placesOf({pilot.now()});
    form.UserControl11.frameStations(kind.askedOnChart ? place : std::vector<GeoPosition>{});
    question.chart = pictures.chart(form.UserControl11);
    showAircraft(flight, true);
    try {
        source.questions->solve(pilot, situation);
    } catch (const LostPilot& lost) {
        throw PlanError(source.file, situation.line, lost.what());
    }
    const auto places = placesOf(pilot.rows());
    form.UserControl11.frameStations(places);
    question.flown = pictures.chart(form.UserControl11);

    const auto exercise = kind.make(texts, draw);
    exercise->take(
        source.questions->ask({situation, source.chart, pilot.rows(), pilot.said(), {}}, language));
    question.task = QString::fromStdString(exercise->task());
    question.known = QString::fromStdString(exercise->known());
    question.rows = rowsOf(*exercise, texts);
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
