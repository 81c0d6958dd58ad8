#include "tools/course/print_command.h"

#include "tools/course/sheets.h"
#include "tools/output/output_file.h"
#include "window/widgets/dressing.h"
#include "window/widgets/text_of.h"

#include <QApplication>

namespace tarnel {

void printCourse(const CourseSource& source, Language language,
                 const std::string& applicationFolder, const std::string& file) {
    constexpr auto platform = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(platform))
        qputenv(platform, "offscreen"); // a page comes out the same on every desktop
    char program[] = "tarnel-course";
    char* words[] = {program, nullptr};
    int count = 1;
    const QApplication application(count, words);
    const StringTable& texts = language == Language::german ? germanTable() : englishTable();
    dressApplication(texts, QString::fromStdString(applicationFolder));
    const ExerciseKind& exercise = *exerciseOf(static_cast<int>(source.kind->type));
    const SheetStyle style{textOf(texts, exercise.title), language,
                           QString::fromStdString(applicationFolder)};
    OutputFile output(file);
    output.write(
        sheets(style, printedQuestions(source, language, applicationFolder)).toStdString());
    output.close();
}

} // namespace tarnel
