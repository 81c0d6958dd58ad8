#include "tools/handbook/plates.h"

#include "authoring/source_file.h"
#include "flights/plan_bounds.h"
#include "persistence/file_bytes.h"
#include "tools/handbook/drawings.h"
#include "tools/printed/printed_question.h"
#include "window/widgets/text_of.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>

namespace tarnel {

namespace {

QJsonObject rowJson(const PrintedQuestion::Row& row) {
    return {{"prompt", row.prompt},
            {"offers", QJsonArray::fromStringList(row.offers)},
            {"units", QJsonArray::fromStringList(row.units)},
            {"solution", row.solution}};
}

QJsonObject wordsOf(const PrintedQuestion& question, const QString& name) {
    QJsonArray rows;
    for (const PrintedQuestion::Row& row : question.rows)
        rows.append(rowJson(row));
    return {{"name", name}, {"task", question.task}, {"known", question.known}, {"rows", rows}};
}

void draw(const PrintedQuestion& question, InstrumentPainter& dials, const std::string& stem) {
    if (question.left && question.right) {
        writeFile(stem + "-left.svg", dialDrawing(dials, *question.left));
        writeFile(stem + "-right.svg", dialDrawing(dials, *question.right));
    } else {
        writeFile(stem + "-asked.svg", pictureDrawing(question.chart, PrintedQuestion::chartUnits));
    }
    writeFile(stem + "-flown.svg", pictureDrawing(question.flown, PrintedQuestion::solutionUnits));
}

/// What stands behind the course in a situation's name.
std::string numberOf(std::size_t situation) {
    return (situation < 10 ? "-0" : "-") + std::to_string(situation);
}

} // namespace

void drawPlates(const std::string& source, const std::string& folder, Language language,
                const std::string& applicationFolder) {
    const ChartShelf charts({applicationFolder + "/default/maps", applicationFolder});
    const CourseSource course = readCourse(readFileBytes(source, largestPlan), source, charts);
    const std::vector<PrintedQuestion> questions =
        printedQuestions(course, language, applicationFolder);
    PictureStore pictures(QString::fromStdString(applicationFolder));
    InstrumentPainter dials(pictures, Numerals::text);
    const std::filesystem::path stem =
        std::filesystem::path(folder) / std::filesystem::path(source).stem();
    QJsonArray situations;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const std::string situation = stem.filename().string() + numberOf(i + 1);
        draw(questions[i], dials, stem.string() + numberOf(i + 1));
        situations.append(wordsOf(questions[i], QString::fromStdString(situation)));
    }
    const StringTable& texts = language == Language::german ? germanTable() : englishTable();
    const ExerciseKind& exercise = *exerciseOf(static_cast<int>(course.kind->type));
    writeFile(stem.string() + ".plates.json",
              QJsonDocument(
                  QJsonObject{{"title", textOf(texts, exercise.title)}, {"situations", situations}})
                  .toJson());
}

} // namespace tarnel
