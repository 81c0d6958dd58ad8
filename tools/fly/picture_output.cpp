#include "tools/fly/picture_output.h"

#include "tools/output/output_file.h"
#include "window/frame/window_picture.h"
#include "window/widgets/picture_bytes.h"

#include <QApplication>

namespace tarnel {

namespace {

/// Pictures come out the same on every desktop: the windowless platform, unless another is asked
/// for.
void choosePlatform() {
    constexpr auto variable = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(variable))
        qputenv(variable, "offscreen");
}

} // namespace

void writePicture(Form1& form, const std::string& file) {
    choosePlatform();
    char program[] = "tarnel-fly";
    char* words[] = {program, nullptr};
    int count = 1;
    const QApplication application(count, words);
    const QString name =
        file == standardOutput ? QStringLiteral("window.png") : QString::fromStdString(file);
    const QByteArray picture = pictureBytes(windowPicture(form), name);
    if (picture.isEmpty())
        throw OutputError(file, "its name ends in no kind of picture");
    OutputFile output(file);
    output.write(picture.toStdString());
    output.close();
}

} // namespace tarnel
