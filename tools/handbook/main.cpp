// tarnel-handbook: what the handbook is set from besides its words.

#include "shell/application_folder.h"
#include "tools/handbook/book_table.h"
#include "tools/handbook/figures.h"
#include "tools/handbook/options.h"
#include "tools/handbook/plates.h"
#include "tools/output/tool_run.h"
#include "window/widgets/dressing.h"

#include <QApplication>

#include <iostream>

namespace {

using namespace tarnel;

constexpr auto usage =
    "Usage: tarnel-handbook sections [--language de|en]\n"
    "       tarnel-handbook figures PLAN... --out FOLDER [--language de|en]\n"
    "       tarnel-handbook plates COURSE... --out FOLDER [--language de|en]\n"
    "Makes what the handbook is set from besides its words.\n"
    "\n"
    "  sections      print the book's sections with their pages and titles, as JSON\n"
    "  figures       fly each plan and draw the dials and the chart at its end\n"
    "  plates        fly each situation of a course and draw it with its solution; its words go\n"
    "                into COURSE.plates.json\n"
    "  --help        this text\n";

ExitStatus run(const HandbookOptions& options) {
    const StringTable& texts = options.german ? germanTable() : englishTable();
    if (options.command == HandbookCommand::help) {
        std::cout << usage;
    } else if (options.command == HandbookCommand::sections) {
        std::cout << bookTable(texts).toStdString();
    } else {
        const std::string data = applicationFolder();
        dressApplication(texts, QString::fromStdString(data));
        for (const std::string& source : options.sources) {
            if (options.command == HandbookCommand::figures)
                drawFigures(source, options.out, texts, data);
            else
                drawPlates(source, options.out,
                           options.german ? Language::german : Language::english, data);
        }
    }
    return done;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a page comes out the same on every desktop
    const QApplication application(argc, argv);
    return runTool("tarnel-handbook", usage, [&] {
        return run(readHandbookOptions({argv + 1, argv + argc}));
    });
}
