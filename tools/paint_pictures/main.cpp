// paint_pictures OUTDIR ICONDIR: paints every picture of the program into a folder, and the icons
// of an installation into another.

#include "core/run_time_error.h"
#include "persistence/save_file.h"
#include "platform/process.h"
#include "tools/paint_pictures/digit_painter.h"
#include "tools/paint_pictures/document_painter.h"
#include "tools/paint_pictures/icon_painter.h"
#include "tools/paint_pictures/instrument_faces.h"
#include "tools/paint_pictures/knob_painter.h"
#include "tools/paint_pictures/palette.h"

#include <QBuffer>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#ifdef TARNEL_SVG
#include <QSvgGenerator>
#endif

#include <cstdio>
#include <stdexcept>
#include <utility>

namespace tarnel {

namespace {

// How much smaller the small copies are.
constexpr int faceDivisor = 2;
constexpr int digitDivisor = 4;
constexpr int knobDivisor = 2;
constexpr int pointerDivisor = 1; // it is turned at twice its size

// A folder that pictures are written to; what cannot be written is thrown as a std::runtime_error.
class PictureFolder {
  public:
    explicit PictureFolder(const QString& path) : folder(path) {
        if (!QDir().mkpath(path))
            fail(path, QStringLiteral("the folder cannot be made"));
    }

    void write(const QString& name, const QImage& picture) const {
        constexpr int jpgQuality = 76; // no different to the eye from 95, at a third of the size
        const bool jpg = name.endsWith(QLatin1String(".jpg"));
        QBuffer bytes;
        QImageWriter writer(&bytes, jpg ? "jpg" : "png");
        if (jpg)
            writer.setQuality(jpgQuality);
        if (!writer.write(picture))
            fail(name, writer.errorString());
        write(name, bytes.data());
    }

    void write(const QString& name, const QByteArray& bytes) const {
        try {
            saveFileBytes(folder.filePath(name).toStdString(), bytes.toStdString());
        } catch (const RunTimeError& error) {
            fail(folder.filePath(name), QString::fromUtf8(error.what()));
        }
    }

    // The picture, and a copy of `divisor` times less each way in the folder "small": it is what an
    // ordinary screen needs, and is loaded in a fraction of the time.
    void writeBoth(const QString& name, const QImage& picture, int divisor) const {
        write(name, picture);
        if (!folder.mkpath("small"))
            fail(folder.filePath("small"), QStringLiteral("the folder cannot be made"));
        write("small/" + name, picture.scaled(picture.size() / divisor, Qt::IgnoreAspectRatio,
                                              Qt::SmoothTransformation));
    }

  private:
    [[noreturn]] static void fail(const QString& name, const QString& reason) {
        throw std::runtime_error((name + ": " + reason).toStdString());
    }

    QDir folder;
};

void writeFaces(const PictureFolder& folder) {
    for (const FaceParts& parts : instrumentFaces())
        for (const FaceForm& form : faceForms())
            folder.writeBoth(parts.fileStem + form.suffix + ".jpg", paintFace(parts, form.side),
                             faceDivisor);
}

void writeKnobs(const PictureFolder& folder) {
    constexpr int side = 256;
    folder.writeBoth("knob.png", paintKnob(side, KnobLook::Resting), knobDivisor);
    folder.writeBoth("knob_hover.png", paintKnob(side, KnobLook::Hovered), knobDivisor);
    folder.writeBoth("knob_concentric.png", paintDoubleKnob(side, KnobLook::Resting), knobDivisor);
    folder.writeBoth("knob_concentric_hover.png", paintDoubleKnob(side, KnobLook::Hovered),
                     knobDivisor);
    folder.writeBoth("knob_pointer.png", paintPointer(side), pointerDivisor);
}

void writeDigits(const PictureFolder& folder, const QString& colourWord, const QColor& colour) {
    for (int sign = 0; sign < segmentSigns; ++sign) {
        const QString number = QString::number(sign + 1).rightJustified(2, '0');
        folder.writeBoth("digit_" + colourWord + "_" + number + ".png", paintDigit(sign, colour),
                         digitDivisor);
    }
}

void writeIcons(const PictureFolder& folder) {
    for (const int side : {16, 32, 48, 64, 128, 256})
        for (const auto& [name, kind] :
             {std::pair("session", DocumentKind::session), {"chart", DocumentKind::chart}})
            folder.write(QStringLiteral("%1_%2.png").arg(name).arg(side),
                         paintDocument(kind, side));
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        folder.write(QStringLiteral("tarnel_%1.png").arg(side), paintIcon(side));
#ifdef TARNEL_SVG
    constexpr int drawnSide = 256;
    QBuffer bytes;
    QSvgGenerator drawing;
    drawing.setOutputDevice(&bytes);
    drawing.setSize({drawnSide, drawnSide});
    drawing.setViewBox(QRect(0, 0, drawnSide, drawnSide));
    drawing.setTitle(QStringLiteral("Tarnel"));
    QPainter painter(&drawing);
    paintIcon(painter, drawnSide);
    painter.end();
    folder.write("tarnel.svg", bytes.data());
#endif
}

void paintPictures(const QString& path, const QString& icons) {
    const PictureFolder folder(path);
    writeFaces(folder);
    writeKnobs(folder);
    writeDigits(folder, "amber", look::setByYou);
    writeDigits(folder, "green", look::measured);
    folder.write("tarnel.png", paintIcon(256));
    writeIcons(PictureFolder(icons));
}

} // namespace

} // namespace tarnel

namespace {

constexpr int exitUnwritable = 1;
constexpr int exitUsage = 2;

} // namespace

int main(int argc, char** argv) {
    tarnel::makeFileSizeLimitAnError();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: paint_pictures OUTDIR ICONDIR\n", stderr);
        return exitUsage;
    }
    try {
        tarnel::paintPictures(arguments.at(1), arguments.at(2));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "paint_pictures: %s\n", error.what());
        return exitUnwritable;
    }
    return 0;
}
