// tarnel-handbook: what the handbook is set from besides its words.

#include "core/run_time_error.h"
#include "flights/plan_error.h"
#include "persistence/save_file.h"
#include "shell/application_folder.h"
#include "strings/cause_text.h"
#include "tools/handbook/book_table.h"
#include "tools/handbook/figures.h"
#include "tools/handbook/options.h"
#include "tools/output/output_file.h"
#include "window/widgets/dressing.h"

#include <QApplication>

#include <iostream>

namespace {

using namespace tarnel;

enum ExitStatus { done = 0, sourceIsWrong = 1, usageIsWrong = 2, outputFailed = 3 };

constexpr auto usage =
    "Usage: tarnel-handbook sections [--language de|en]\n"
    "       tarnel-handbook figures PLAN... --out FOLDER [--language de|en]\n"
    "Makes what the handbook is set from besides its words.\n"
    "\n"
    "  sections      print the book's sections with their pages and titles, as JSON\n"
    "  figures       fly each plan and paint the dials and the chart at its end\n"
    "  --help        this text\n";

void run(const HandbookOptions& options) {
    const StringTable& texts = options.german ? germanTable() : englishTable();
    if (options.command == HandbookCommand::sections) {
        std::cout << bookTable(texts).toStdString();
        return;
    }
    const std::string data = applicationFolder();
    dressApplication(texts, QString::fromStdString(data));
    for (const std::string& source : options.sources)
        paintFigures(source, options.out, texts, data);
}

int tell(ExitStatus status, std::string_view what) {
    std::cerr << "tarnel-handbook: " << what << '\n';
    return status;
}

} // namespace

int main(int argc, char** argv) {
    makeFileSizeLimitAnError();
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a page comes out the same on every desktop
    const QApplication application(argc, argv);
    try {
        const HandbookOptions options = readHandbookOptions({argv + 1, argv + argc});
        if (options.command == HandbookCommand::help)
            std::cout << usage;
        else
            run(options);
        return done;
    } catch (const UsageError& error) {
        return tell(usageIsWrong, std::string(error.what()) + '\n' + usage);
    } catch (const PlanError& error) {
        std::cerr << error.what() << '\n';
        return sourceIsWrong;
    } catch (const OutputError& error) {
        return tell(outputFailed, error.what());
    } catch (const RunTimeError& error) {
        return tell(outputFailed, causeText(englishTable(), error.cause()));
    }
}
