#include "tools/fly/picture_output.h"

#include "tools/fly/output_file.h"
#include "window/window_picture.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

namespace tarnel {

namespace {

/// Pictures come out the same on every desktop: the windowless platform, unless another is asked
/// for.
void choosePlatform() {
    constexpr auto variable = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, "offscreen");
}

void save(Form1& form, const QString& file) {
    if (!writeWindowPicture(form, file))
        throw OutputError(file.toStdString());
}

void saveToStandardOutput(Form1& form) {
    const QTemporaryDir scratch;
    QFile picture(scratch.filePath(QStringLiteral("window.png")));
    save(form, picture.fileName());
    OutputFile output(standardOutput);
    picture.open(QIODevice::ReadOnly);
    output.write(picture.readAll().toStdString());
    output.close();
}

} // namespace

void writePicture(Form1& form, const std::string& file) {
    choosePlatform();
    char program[] = "tarnel-fly";
    char* words[] = {program, nullptr};
    int count = 1;
    const QApplication application(count, words);
    if (file == standardOutput)
        saveToStandardOutput(form);
    else
        save(form, QString::fromStdString(file));
}

} // namespace tarnel
