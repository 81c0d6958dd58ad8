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

int brightest(const QImage& image, const QRect& area) {
    int result = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            result = std::max(result, qGray(image.pixel(x, y)));
    return result;
}

// The area in which anything is painted, and how many pixels are more than half covered.
struct Ink {
    QRect area;
    int pixels = 0;
};

Ink inkOf(const QImage& image) {
    Ink ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qAlpha(image.pixel(x, y));
            if (alpha > 0)
                ink.area |= QRect(x, y, 1, 1);
            ink.pixels += alpha > 127 ? 1 : 0;
        }
    return ink;
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

TEST(Pictures, FacesKeepFreeWhatIsDrawnOverThemAndMeetThePanel) {
    constexpr int brightestPlate = 84;
    for (const QString& name :
         QStringList{"QXRadff.jpg", "qxrrmi1g.jpg", "QXRvor2f.jpg", "qxrhsi2.jpg", "qxrhdg.jpg"}) {
        const QImage image = picture(name);
        const QRect button = partOf(image, 0.028, 0.028, 0.028 + 0.205, 0.028 + 0.064);
        EXPECT_LT(brightest(image, button), brightestPlate) << qPrintable(name);
        const QRgb outside = image.pixel(2, 2);
        EXPECT_NEAR(qRed(outside), 0x1F, 3) << qPrintable(name);
        EXPECT_NEAR(qGreen(outside), 0x23, 3) << qPrintable(name);
        EXPECT_NEAR(qBlue(outside), 0x27, 3) << qPrintable(name);
    }
}

TEST(Pictures, DigitsHaveTheirSegmentsInsideTheirCell) {
    // By the number of lit segments; the one and the dash have the fewest.
    const QList<QStringList> byInk{
        {"11"}, {"02"}, {"08"}, {"05"}, {"03", "04", "06"}, {"01", "07", "10"}, {"09"}};
    for (const QString& colour : QStringList{"amber", "green"}) {
        int mostBefore = 0;
        for (const QStringList& signs : byInk) {
            int most = 0;
            for (const QString& sign : signs) {
                const QImage digit = picture("digit_" + colour + "_" + sign + ".png");
                const Ink ink = inkOf(digit);
                EXPECT_GT(ink.pixels, mostBefore) << qPrintable(sign);
                EXPECT_TRUE(digit.rect().adjusted(1, 1, -1, -1).contains(ink.area))
                    << qPrintable(sign);
                most = std::max(most, ink.pixels);
            }
            mostBefore = most;
        }
        EXPECT_TRUE(inkOf(picture("digit_" + colour + "_12.png")).area.isNull());
        const QImage one = picture("digit_" + colour + "_02.png");
        EXPECT_NEAR(inkOf(one).area.center().x(), one.rect().center().x(), 2);
    }
    const QPoint inMiddleBar(84, 135);
    EXPECT_EQ(picture("digit_amber_09.png").pixel(inMiddleBar), 0xFFFFC14D);
    EXPECT_EQ(picture("digit_green_09.png").pixel(inMiddleBar), 0xFF5FE08E);
}

TEST(Pictures, KnobsEndWithinTheirPicturesAndThePointerPointsUp) {
    for (const QString& name : QStringList{"knob.png", "knob_hover.png", "knob_concentric.png",
                                           "knob_concentric_hover.png"}) {
        const QImage knob = picture(name);
        EXPECT_TRUE(knob.rect().adjusted(1, 1, -1, -1).contains(inkOf(knob).area))
            << qPrintable(name);
        EXPECT_EQ(qAlpha(knob.pixel(knob.rect().center())), 255) << qPrintable(name);
    }
    const QImage pointer = picture("knob_pointer.png");
    const QRect area = inkOf(pointer).area;
    EXPECT_LT(area.bottom(), pointer.height() / 2);
    EXPECT_NEAR(area.center().x(), pointer.rect().center().x(), 1);
    EXPECT_GT(area.height(), 3 * area.width());
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
