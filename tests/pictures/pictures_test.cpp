// The painted pictures, as the other programs of the build find them: the folder is named by
// TARNEL_PICTURES, the program that paints it by TARNEL_PAINT_PICTURES.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

QString picturesFolder() {
    return qEnvironmentVariable("TARNEL_PICTURES");
}

QImage picture(const QString& name) {
    const QImage image(QDir(picturesFolder()).filePath(name));
    EXPECT_FALSE(image.isNull()) << qPrintable(name);
    return image.convertToFormat(QImage::Format_ARGB32);
}

struct NamedSize {
    QString pattern; // with % for the variants
    QStringList variants;
    QSize size;
};

QList<NamedSize> expectedFiles() {
    const QStringList faces{"QXRadff",  "QXRadfs",  "qxrrmi1",  "qxrrmi2",  "QXRvor1t",
                            "QXRvor1f", "QXRvor1l", "QXRvor2t", "QXRvor2f", "QXRvor2l",
                            "qxrhsi1",  "qxrhsi2",  "qxrhdg"};
    const QStringList signs{"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"};
    return {
        {"%.jpg", faces, {1100, 1100}},
        {"%g.jpg", faces, {1500, 1500}},
        {"knob%.png", {"", "_hover", "_pointer", "_concentric", "_concentric_hover"}, {512, 512}},
        {"digit_amber_%.png", signs, {168, 271}},
        {"digit_green_%.png", signs, {168, 271}},
        {"tarnel%.png", {""}, {256, 256}},
        {"tarnel%.png", {"_64"}, {64, 64}},
        {"tarnel%.png", {"_32"}, {32, 32}}};
}

// The smallest rectangle around all pixels that differ by more than a JPG's own noise.
QRect differingArea(const QImage& one, const QImage& other) {
    constexpr int noise = 14;
    QRect area;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > noise)
                area |= QRect(x, y, 1, 1);
    return area;
}

QRect partOf(const QImage& image, double left, double top, double right, double bottom) {
    const double side = image.width();
    return QRectF(left * side, top * side, (right - left) * side, (bottom - top) * side).toRect();
}

// In halves of the side from the centre, as the live instruments count.
QRect partFromCentre(const QImage& image, double left, double top, double right, double bottom) {
    return partOf(image, (left + 1) / 2, (top + 1) / 2, (right + 1) / 2, (bottom + 1) / 2);
}

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

int runPainter(const QStringList& arguments) {
    QProcess painter;
    painter.start(qEnvironmentVariable("TARNEL_PAINT_PICTURES"), arguments);
    constexpr int patienceMilliseconds = 120'000;
    EXPECT_TRUE(painter.waitForFinished(patienceMilliseconds));
    return painter.exitCode();
}

} // namespace

TEST(Pictures, EveryFileIsThereInItsSizeAndNoOther) {
    qsizetype count = 0;
    for (const NamedSize& expected : expectedFiles())
        for (const QString& variant : expected.variants) {
            const QString name = QString(expected.pattern).replace("%", variant);
            EXPECT_EQ(picture(name).size(), expected.size) << qPrintable(name);
            ++count;
        }
    EXPECT_EQ(QDir(picturesFolder()).entryList({"*.jpg", "*.png"}, QDir::Files).size(), count);
}

// Pictures are exchanged while the student looks: only what has changed may move.
TEST(Pictures, ExchangedFacesDifferOnlyWhereTheyShould) {
    const QImage base = picture("QXRvor1t.jpg");
    const QRect window = partFromCentre(base, 0.16, 0.09, 0.44, 0.25);
    const QRect selector = partOf(base, 0.78, 0.015, 0.985, 0.21);
    const struct {
        QString one;
        QString other;
        QRect within;
    } pairs[] = {{"QXRvor1t", "QXRvor1f", window}, {"QXRvor1f", "QXRvor1l", window},
                 {"QXRvor2t", "QXRvor2l", window}, {"QXRvor1t", "QXRvor2t", selector},
                 {"QXRadff", "QXRadfs", selector}, {"qxrrmi1", "qxrrmi2", selector},
                 {"qxrhsi1", "qxrhsi2", selector}};
    // The knob of an ADF's fixed card goes with it.
    const QRect cardKnob = partOf(base, 0, 0.8, 0.3, 1);
    const auto face = [&](const QString& name) {
        QImage image = picture(name + ".jpg");
        if (name.startsWith("QXRad"))
            QPainter(&image).fillRect(cardKnob, Qt::black);
        return image;
    };
    for (const auto& pair : pairs) {
        const QRect area = differingArea(face(pair.one), face(pair.other));
        EXPECT_GT(area.width(), 20) << qPrintable(pair.one);
        EXPECT_TRUE(pair.within.contains(area)) << qPrintable(pair.one);
    }
}

// What is drawn live needs a dark ground: ticks, numerals, needles, dots and the warning flag.
TEST(Pictures, TheCardUnderLiveDrawingIsDark) {
    constexpr int darkEnough = 64;
    const struct {
        QString name;
        double cardRadius;
    } faces[] = {{"QXRadff.jpg", 0.741},   {"qxrrmi2g.jpg", 0.741}, {"QXRvor1l.jpg", 0.741},
                 {"QXRvor2tg.jpg", 0.741}, {"qxrhsi1.jpg", 0.702},  {"qxrhdgg.jpg", 0.858}};
    for (const auto& face : faces) {
        const QImage image = picture(face.name);
        const QRect window = partFromCentre(image, 0.16, 0.09, 0.44, 0.25);
        const double half = image.width() / 2.0;
        int worst = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (std::hypot(x - half, y - half) < face.cardRadius * half &&
                    !window.contains(x, y))
                    worst = std::max(worst, qGray(image.pixel(x, y)));
        EXPECT_LT(worst, darkEnough) << qPrintable(face.name);
    }
}

TEST(Pictures, PaintingAgainGivesTheSameBytes) {
    if (!qEnvironmentVariableIsSet("TARNEL_PAINT_PICTURES"))
        GTEST_SKIP() << "TARNEL_PAINT_PICTURES is not set";
    const QTemporaryDir again;
    ASSERT_EQ(runPainter({again.path()}), 0);
    for (const QString& name : QDir(picturesFolder()).entryList({"*.jpg", "*.png"}, QDir::Files))
        EXPECT_TRUE(contents(again.filePath(name)) ==
                    contents(QDir(picturesFolder()).filePath(name)))
            << qPrintable(name);
}

TEST(Pictures, ThePainterReportsWrongUseAndAFolderItCannotWrite) {
    if (!qEnvironmentVariableIsSet("TARNEL_PAINT_PICTURES"))
        GTEST_SKIP() << "TARNEL_PAINT_PICTURES is not set";
    EXPECT_EQ(runPainter({}), 2);
    EXPECT_EQ(runPainter({"one", "two"}), 2);
    const QTemporaryDir folder;
    const QString plainFile = folder.filePath("plain_file");
    ASSERT_TRUE(QFile(plainFile).open(QIODevice::WriteOnly));
    EXPECT_EQ(runPainter({plainFile + "/pictures"}), 1);
    ASSERT_TRUE(QDir(folder.path()).mkpath("taken/QXRadff.jpg"));
    EXPECT_EQ(runPainter({folder.filePath("taken")}), 1);
}
