// tarnel-help SOURCES OUT: makes the pages of the help, and paints the pictures on them.
// tarnel-help --windows OUT: paints flight.png, exercise.png and debrief.png as README shows them.

#include "tools/help/help_builder.h"
#include "tools/help/panel_pictures.h"
#include "tools/output/tool_run.h"

#include <QApplication>

namespace {

using namespace tarnel;

constexpr auto usage = "Usage: tarnel-help SOURCES OUT\n"
                       "       tarnel-help --windows OUT\n"
                       "Makes the pages of the help as HTML from the Markdown in SOURCES, with\n"
                       "pictures of the trainer's panels; or paints its whole window in a flight,\n"
                       "an exercise and a debrief.\n";

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return runTool("tarnel-help", usage, [&] {
        const QStringList words = QApplication::arguments();
        if (words.size() != 3)
            throw UsageError("a folder of sources and one for the pages are needed");
        if (words[1] == QLatin1String("--windows"))
            paintWindows(englishTable(), words[2]);
        else
            buildHelp(words[1], words[2]);
        return done;
    });
}
