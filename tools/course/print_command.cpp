#include "tools/course/print_command.h"

#include "tools/course/sheets.h"
#include "tools/output/output_file.h"
#include "window/widgets/dressing.h"

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
    const std::string title(texts[exercise.title]);
    OutputFile output(file);
    output.write(sheets(QString::fromStdString(title),
                        printedQuestions(source, language, applicationFolder), language)
                     .toStdString());
    output.close();
}

} // namespace tarnel
