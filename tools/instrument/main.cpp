#include "flights/flight_plan.h"
#include "shell/application_folder.h"
#include "strings/string_table.h"
#include "tools/instrument/instrument_bench.h"
#include "tools/output/output_file.h"
#include "tools/output/tool_run.h"
#include "window/widgets/dressing.h"
#include "window/widgets/picture_bytes.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

using namespace tarnel;

/// Writes the bench as it stands to a picture.
void writePicture(InstrumentBench& bench, const QString& file) {
    QApplication::processEvents();
    bench.refresh();
    const QByteArray picture = pictureBytes(bench.grab(), file);
    if (picture.isEmpty())
        throw OutputError(file.toStdString(), "its name ends in no kind of picture");
    OutputFile output(file.toStdString());
    output.write(picture.toStdString());
    output.close();
}

ExitStatus runBench(const QCommandLineParser& words, const QCommandLineOption& large,
                    const QCommandLineOption& picture) {
    const QString word = words.positionalArguments().value(0, QStringLiteral("HSI")).toUpper();
    const auto display = displayOf(word.toStdString());
    if (!display || words.positionalArguments().size() > 1)
        throw UsageError("one of ADF, RMI, VOR, HSI or DG is wanted");
    const std::string folder = applicationFolder();
    dressApplication(englishTable(), QString::fromStdString(folder));
    InstrumentBench bench(englishTable(), folder, static_cast<InstrumentKind>(*display),
                          words.isSet(large));
    bench.show();
    if (words.isSet(picture))
        writePicture(bench, words.value(picture));
    else
        QApplication::exec();
    return done;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QCommandLineParser words;
    words.setApplicationDescription(
        QStringLiteral("Shows one instrument alone, with its inputs as sliders and fields."));
    words.addHelpOption();
    words.addPositionalArgument(QStringLiteral("kind"),
                                QStringLiteral("ADF, RMI, VOR, HSI or DG; HSI without it"),
                                QStringLiteral("[kind]"));
    const QCommandLineOption large(QStringLiteral("large"), QStringLiteral("The large size."));
    const QCommandLineOption picture(QStringLiteral("picture"),
                                     QStringLiteral("Write the window to FILE and end."),
                                     QStringLiteral("FILE"));
    words.addOption(large);
    words.addOption(picture);
    words.process(application);
    return runTool("tarnel-instrument", words.helpText().toStdString(),
                   [&] { return runBench(words, large, picture); });
}
