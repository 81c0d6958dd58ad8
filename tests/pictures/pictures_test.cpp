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
#include <functional>

namespace {

QString picturesFolder() {
    return qEnvironmentVariable("TARNEL_PICTURES");
}

QImage picture(const QString& name) {
    const QImage image(QDir(picturesFolder()).filePath(name));
    EXPECT_FALSE(image.isNull()) << qPrintable(name);
    return image.convertToFormat(QImage::Format_ARGB32);
}

/// The smallest rectangle around all pixels for which that holds.
QRect areaOf(const QImage& image, const std::function<bool(int, int)>& holds) {
    QRect area;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (holds(x, y))
                area |= QRect(x, y, 1, 1);
    return area;
}

QRect partOf(const QImage& image, double left, double top, double right, double bottom) {
    const double side = image.width();
    return QRectF(left * side, top * side, (right - left) * side, (bottom - top) * side).toRect();
}

/// The window of the flag, in halves of the side from the centre as the live instruments count.
QRect flagWindow(const QImage& image) {
    return partOf(image, 1.16 / 2, 1.09 / 2, 1.44 / 2, 1.25 / 2);
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
    const QStringList faces{"QXRadff",  "QXRadfs",  "qxrrmi1",  "qxrrmi2",  "QXRvor1t",
                            "QXRvor1f", "QXRvor1l", "QXRvor2t", "QXRvor2f", "QXRvor2l",
                            "qxrhsi1",  "qxrhsi2",  "qxrhdg"};
    const QStringList signs{"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"};
    const QStringList knobs{"", "_hover", "_pointer", "_concentric", "_concentric_hover"};
    const std::tuple<QString, QStringList, QSize> files[] = {
        {"%.jpg", faces, {1100, 1100}},           {"%g.jpg", faces, {1500, 1500}},
        {"knob%.png", knobs, {256, 256}},         {"digit_amber_%.png", signs, {168, 271}},
        {"digit_green_%.png", signs, {168, 271}}, {"tarnel%.png", {""}, {256, 256}}};
    qsizetype count = 0;
    for (const auto& [pattern, variants, size] : files)
        for (const QString& variant : variants) {
            const QString name = QString(pattern).replace("%", variant);
            EXPECT_EQ(picture(name).size(), size) << qPrintable(name);
            ++count;
        }
    EXPECT_EQ(QDir(picturesFolder()).entryList({"*.jpg", "*.png"}, QDir::Files).size(), count);
}

// Pictures are exchanged while the student looks: only what has changed may move.
TEST(Pictures, ExchangedFacesDifferOnlyWhereTheyShould) {
    const QImage base = picture("QXRvor1t.jpg");
    const QRect window = flagWindow(base);
    const QRect selector = partOf(base, 0.78, 0.015, 0.985, 0.21);
    const std::tuple<QString, QString, QRect> pairs[] = {
        {"QXRvor1t", "QXRvor1f", window}, {"QXRvor1f", "QXRvor1l", window},
        {"QXRvor2t", "QXRvor2l", window}, {"QXRvor1t", "QXRvor2t", selector},
        {"QXRadff", "QXRadfs", selector}, {"qxrrmi1", "qxrrmi2", selector},
        {"qxrhsi1", "qxrhsi2", selector}};
    const auto face = [&](const QString& name) {
        QImage image = picture(name + ".jpg");
        if (name.startsWith("QXRad")) // the knob of a fixed card goes with it
            QPainter(&image).fillRect(partOf(base, 0, 0.8, 0.3, 1), Qt::black);
        return image;
    };
    for (const auto& [name, other, within] : pairs) {
        const QImage one = face(name);
        const QImage two = face(other);
        const QRect area = areaOf(one, [&](int x, int y) { // by more than a JPG's own noise
            return std::abs(qGray(one.pixel(x, y)) - qGray(two.pixel(x, y))) > 14;
        });
        EXPECT_GT(area.width(), 20) << qPrintable(name);
        EXPECT_TRUE(within.contains(area)) << qPrintable(name);
    }
}

// What is drawn live needs a dark ground: ticks, numerals, needles, dots and the warning flag.
TEST(Pictures, TheCardUnderLiveDrawingIsDark) {
    for (const auto& [name, radius] : {std::pair("QXRadff.jpg", 0.741),
                                       {"qxrrmi2g.jpg", 0.741},
                                       {"QXRvor1l.jpg", 0.741},
                                       {"QXRvor2tg.jpg", 0.741},
                                       {"qxrhsi1.jpg", 0.702},
                                       {"qxrhdgg.jpg", 0.858}}) {
        const QImage image = picture(name);
        const QRect window = flagWindow(image);
        const double half = image.width() / 2.0;
        const QRect bright = areaOf(image, [&, card = radius * half](int x, int y) {
            return std::hypot(x - half, y - half) < card && !window.contains(x, y) &&
                   qGray(image.pixel(x, y)) >= 64;
        });
        EXPECT_TRUE(bright.isEmpty()) << name;
    }
}

TEST(Pictures, DigitsAndKnobsEndWithinTheirPictures) {
    for (const QString& name : QDir(picturesFolder()).entryList({"digit*.png", "knob*.png"})) {
        const QImage image = picture(name);
        const QRect area =
            areaOf(image, [&](int x, int y) { return qAlpha(image.pixel(x, y)) > 0; });
        EXPECT_TRUE((image.rect().adjusted(1, 1, -1, -1) | area) ==
                    image.rect().adjusted(1, 1, -1, -1))
            << qPrintable(name);
        EXPECT_EQ(area.isNull(), name.endsWith("_12.png")) << qPrintable(name);
        if (name == "knob_pointer.png") {
            EXPECT_LT(area.bottom(), image.height() / 2) << "it points up";
        }
    }
    const QPoint inMiddleBar(84, 135);
    EXPECT_EQ(picture("digit_amber_09.png").pixel(inMiddleBar), 0xFFFFC14D);
    EXPECT_EQ(picture("digit_green_09.png").pixel(inMiddleBar), 0xFF5FE08E);
    EXPECT_EQ(qAlpha(picture("digit_amber_01.png").pixel(inMiddleBar)), 0) << "a nought";
}

TEST(Pictures, PaintingAgainGivesTheSameBytesAndWrongUseIsReported) {
    if (!qEnvironmentVariableIsSet("TARNEL_PAINT_PICTURES"))
        GTEST_SKIP() << "TARNEL_PAINT_PICTURES is not set";
    const auto contents = [](const QString& path) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    };
    const QTemporaryDir again;
    ASSERT_EQ(runPainter({again.path(), again.filePath("icons")}), 0);
    EXPECT_EQ(QImage(again.filePath("icons/tarnel_22.png")).size(), QSize(22, 22));
    for (const QString& name : QDir(picturesFolder()).entryList({"*.jpg", "*.png"}, QDir::Files))
        EXPECT_TRUE(contents(again.filePath(name)) ==
                    contents(QDir(picturesFolder()).filePath(name)))
            << qPrintable(name);
    EXPECT_EQ(runPainter({}), 2);
    EXPECT_EQ(runPainter({"one"}), 2);
    EXPECT_EQ(runPainter({again.filePath("QXRadff.jpg") + "/pictures", again.path()}), 1);
}
