#include "look/panel_look.h"
#include "panel/instrument_legend.h"
#include "window/dials/instrument_header.h"
#include "window/dials/instrument_painter.h"
#include "window/dials/needle_swatch.h"
#include "window/student_fixture.h"

#include <QImage>
#include <QPainter>

#include <set>

namespace tarnel {

namespace {

/// How many pixels of an area have a colour exactly.
int inkOf(const QColor& colour, const QImage& image, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == colour ? 1 : 0;
    return count;
}

// The legend above a dial has each needle in the colour that it has on the dial, and no two needles
// have the same sign.
TEST_F(Student, FindsEachNeedleOfTheLegendOnTheDial) {
    open(englishTable(), {1024, 768}); // where the legend has least room
    auto* header = window->findChild<InstrumentHeader*>();
    form->inst2OverlayBox.click();
    std::set<QByteArray> signs;
    for (const int kind : {adf, rmi, vor, hsi}) {
        form->inst2TypeList.pick(kind - 1);
        settle();
        const QImage dial = find<QWidget>("UserControl13_0").grab().toImage();
        const QImage legend = header->grab().toImage();
        const auto parts =
            instrumentLegend(form->texts, form->inst2, form->positions.feedSources(), {});
        EXPECT_EQ(parts.size(), kind == hsi ? 3 : kind == adf ? 1 : 2);
        for (const LegendPart& part : parts) {
            EXPECT_GT(inkOf(needleColour(part.needle), dial, dial.rect()), 40) << part.text;
            const bool room = part.needle != NeedleRole::overlay;
            EXPECT_EQ(inkOf(needleColour(part.needle), legend, legend.rect()) > 2, room)
                << part.text;
            QImage sign(24, 24, QImage::Format_RGB32);
            sign.fill(Qt::black);
            QPainter painter(&sign);
            paintSwatch(painter, part.needle, {12, 12});
            painter.end();
            if (part.needle != NeedleRole::none)
                signs.insert(QByteArray(reinterpret_cast<const char*>(sign.constBits()),
                                        static_cast<int>(sign.sizeInBytes())));
        }
    }
    EXPECT_EQ(signs.size(), 5U);
}

// Needles pass below the numerals.
TEST_F(Student, ReadsANumeralThatANeedleLiesOver) {
    open();
    UserControl_1 instrument;
    instrument.c_MainAppPath = "no such folder";
    PictureStore pictures("no such folder");
    InstrumentPainter paint(pictures);
    const auto inkOfEast = [&] {
        QImage image(344, 344, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        paint.paint(painter, instrument.picture, image.width());
        painter.end();
        const double scale = image.width() / instrument.picture.size;
        const Area box = numeralBox(instrument.picture.Label1[3]);
        return inkOf(
            look::ticks, image,
            QRectF(box.left * scale, box.top * scale, box.width * scale, box.height * scale)
                .toRect());
    };
    for (const int kind : {rmi, hsi}) {
        instrument.Display = static_cast<std::int16_t>(kind);
        const auto turnTo = [&](double degrees) {
            instrument.adfradial = instrument.adf2radial = instrument.c_OBS = degrees;
            instrument.c_OBS_x = degrees;
        };
        turnTo(30);
        const int free = inkOfEast();
        turnTo(90);
        EXPECT_GT(free, 20);
        EXPECT_EQ(inkOfEast(), free) << kind;
    }
}

} // namespace

} // namespace tarnel
