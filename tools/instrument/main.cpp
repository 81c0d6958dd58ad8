#include "flights/flight_plan.h"
#include "persistence/save_file.h"
#include "shell/application_folder.h"
#include "strings/string_table.h"
#include "tools/instrument/instrument_bench.h"
#include "tools/output/output_file.h"
#include "window/widgets/dressing.h"
#include "window/widgets/picture_bytes.h"

#include <QApplication>
#include <QCommandLineParser>

namespace {

using namespace tarnel;

constexpr int badUsage = 2;

/// Writes the bench as it stands to a picture. The exit status.
int writePicture(InstrumentBench& bench, const QString& file) {
    QApplication::processEvents();
    bench.refresh();
    const QByteArray picture = pictureBytes(bench.grab(), file);
    try {
        if (picture.isEmpty())
            throw OutputError(file.toStdString(), "its name ends in no kind of picture");
        OutputFile output(file.toStdString());
        output.write(picture.toStdString());
        output.close();
        return 0;
    } catch (const OutputError& error) {
        qCritical("tarnel-instrument: %s", error.what());
        return 1;
    }
}

int runBench(const QCommandLineParser& words, const QCommandLineOption& large,
             const QCommandLineOption& picture) {
    const QString word = words.positionalArguments().value(0, QStringLiteral("HSI")).toUpper();
    const auto display = displayOf(word.toStdString());
    if (!display || words.positionalArguments().size() > 1) {
        qCritical("tarnel-instrument: one of ADF, RMI, VOR, HSI or DG is wanted");
        return badUsage;
    }
    const std::string folder = applicationFolder();
    dressApplication(englishTable(), QString::fromStdString(folder));
    InstrumentBench bench(englishTable(), folder, static_cast<InstrumentKind>(*display),
                          words.isSet(large));
    bench.show();
    if (words.isSet(picture))
        return writePicture(bench, words.value(picture));
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    makeFileSizeLimitAnError();
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
    return runBench(words, large, picture);
}
