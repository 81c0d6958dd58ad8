#include "engine/simulation_fixture.h"
#include "instruments/instrument_fixture.h"
#include "look/panel_look.h"
#include "panel/instrument_legend.h"
#include "strings/string_table.h"
#include "window/chart/chart_overlays.h"
#include "window/chart/chart_painter.h"
#include "window/dials/instrument_header.h"
#include "window/dials/instrument_painter.h"
#include "window/dials/needle_swatch.h"
#include "window/student_fixture.h"

#include <QImage>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <span>

namespace tarnel {
namespace {

constexpr int side = 544;

QImage painted(const std::function<void(QPainter&)>& paint) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    paint(painter);
    return image;
}

/// The share of a line on which ink lies that is nearly of that colour, but for a tenth at each
/// end.
double inkAlong(const QImage& image, const QLineF& line, const QColor& colour) {
    constexpr int steps = 80;
    int found = 0;
    for (int i = 0; i <= steps; ++i) {
        const QPointF at = line.pointAt(0.1 + 0.8 * i / steps);
        const QColor ink = image.pixelColor(static_cast<int>(at.x()), static_cast<int>(at.y()));
        found += std::abs(ink.red() - colour.red()) + std::abs(ink.green() - colour.green()) +
                     std::abs(ink.blue() - colour.blue()) <
                 120;
    }
    return found / (steps + 1.0);
}

/// How many pixels of an area have a colour exactly.
int inkOf(const QColor& colour, const QImage& image, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.pixelColor(x, y) == colour;
    return count;
}

/// A dial. What a needle is decides how it is painted, so the model's colours are put out of order.
QImage paintedDial(InstrumentPicture picture) {
    for (const std::span<Line> lines :
         {std::span<Line>(picture.Line1), std::span<Line>(picture.Line3to6),
          std::span<Line>(picture.Line7to12), std::span(&picture.Line13, 1),
          std::span<Line>(picture.Line15), std::span<Line>(picture.Line16)})
        for (Line& line : lines)
            line.colour = 0x345678;
    PictureStore pictures("no such folder");
    return painted(
        [&](QPainter& painter) { InstrumentPainter(pictures).paint(painter, picture, side); });
}

// Heading and course north, so that bar and triangle stand upright on either dial.
TEST(DialInk, BarAndTriangleStandWhereTheNeedleIs) {
    struct Case {
        InstrumentKind kind;
        double radial, locEn;
        double bar;   ///< of the half, to the right
        int triangle; ///< 1 up, -1 down, 0 none
    };
    for (const Case& c : {Case{InstrumentKind::vor, 5, 0, -0.19, 0},
                          {InstrumentKind::vor, 181, -6, 0.19, 0},
                          {InstrumentKind::hsi, 355, 0, 0.18, -1},
                          {InstrumentKind::hsi, 185, 0, 0.18, 1},
                          {InstrumentKind::hsi, 181, -6, 0.18, 0}}) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(c.kind) << " on " << c.radial);
        PanelInstrument instrument(c.kind);
        instrument.feed(c.radial, 0, 0, 0, c.locEn);
        const QImage image = paintedDial(instrument.picture);
        const auto upright = [](double x, double from, double to) {
            return QLineF(side / 2.0 * (1 + x), side / 2.0 * (1 - from), side / 2.0 * (1 + x),
                          side / 2.0 * (1 - to));
        };
        const QColor colour = c.kind == InstrumentKind::vor ? look::deviationBar : look::course;
        EXPECT_GT(inkAlong(image, upright(c.bar, -0.25, 0.25), colour), 0.8);
        EXPECT_LT(inkAlong(image, upright(-c.bar, -0.25, 0.25), colour), 0.2);
        for (const int way : {1, -1})
            EXPECT_EQ(inkAlong(image, upright(0, 0.17 * way, 0.25 * way), look::ticks) > 0.8,
                      c.triangle == way)
                << way;
    }
}

TEST(DialInk, ASecondNeedleEndsInItsHead) {
    PanelInstrument rmi(InstrumentKind::rmi);
    rmi.adfradial = 90; // out of its way
    rmi.adf2radial = 0;
    rmi.angle = 0;
    const QImage image = paintedDial(rmi.picture);
    const auto scale = QTransform::fromScale(side / 2.0, side / 2.0);
    for (const double x : {-0.03, 0.03})
        EXPECT_GT(inkAlong(image, scale.map(QLineF(1 + x, 0.57, 1 + x, 0.5)), look::needleTwo), 0.8)
            << x;
}

// A flag where no deviation can be read, and the needle over an HSI that is put away.
TEST(DialInk, WhatComesAndGoesIsThereWhileItIsOut) {
    for (const InstrumentKind kind : {InstrumentKind::vor, InstrumentKind::hsi}) {
        PanelInstrument instrument(kind);
        for (const double radial : {30.0, 90.0, 150.0})
            for (const bool overlay : {false, true}) {
                instrument.c_RMIoverlayEN = overlay;
                instrument.feed(radial, 0, 0, 0);
                const QImage image = paintedDial(instrument.picture);
                EXPECT_EQ(inkOf(look::flagRed, image, image.rect()) > 100, radial == 90) << radial;
                EXPECT_EQ(inkOf(look::overlayNeedle, image, image.rect()) > 100,
                          overlay && kind == InstrumentKind::hsi)
                    << radial;
            }
    }
}

TEST(DialInk, NeedlesPassBelowTheNumerals) {
    for (const InstrumentKind kind : {InstrumentKind::rmi, InstrumentKind::hsi}) {
        PanelInstrument instrument(kind);
        const auto inkOfEast = [&](double degrees) {
            instrument.adfradial = instrument.adf2radial = instrument.c_OBS = degrees;
            instrument.c_OBS_x = degrees;
            const double scale = side / instrument.picture.size;
            const Area box = numeralBox(instrument.picture.Label1[3]);
            const QRectF area(box.left * scale, box.top * scale, box.width * scale,
                              box.height * scale);
            return inkOf(look::ticks, paintedDial(instrument.picture), area.toRect());
        };
        const int free = inkOfEast(30);
        EXPECT_GT(free, 20);
        EXPECT_GT(inkOfEast(90), 0.95 * free) << static_cast<int>(kind);
    }
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

/// Notes what is written, and by how much it is turned.
class Lettering : public QPaintDevice, private QPaintEngine {
  public:
    Lettering() : QPaintEngine(AllFeatures) {}
    std::map<std::string, double> texts; ///< degrees clockwise

  private:
    [[nodiscard]] QPaintEngine* paintEngine() const override {
        return const_cast<Lettering*>(this);
    }
    [[nodiscard]] int metric(PaintDeviceMetric what) const override {
        return what == PdmWidth || what == PdmHeight ? side
               : what == PdmDevicePixelRatioScaled   ? 65536
                                                     : 96;
    }
    bool begin(QPaintDevice* /*device*/) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState& /*state*/) override {}
    void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                    const QRectF& /*from*/) override {}
    void drawPath(const QPainterPath& /*path*/) override {}
    void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
    void drawTextItem(const QPointF& /*at*/, const QTextItem& item) override {
        const QTransform turn = painter()->combinedTransform();
        texts[item.text().toStdString()] = std::atan2(turn.m12(), turn.m11()) * 180 / planePi;
    }
    [[nodiscard]] Type type() const override { return User; }
};

// North up, and with the heading up.
TEST(ChartInk, RadialArrowAndLetteringLieRightInBothViews) {
    for (const double heading : {0.0, 73.0, 205.0}) {
        SCOPED_TRACE(heading);
        RecordedMessages messages;
        UserControl2 sim(messages);
        sim.turnAircraft(heading);
        sim.c_MAPnorthUP = heading == 0;
        sim.c_NAVRadI2 = 1;
        sim.c_obsI2 = 60 - heading; // as the panel gives it, from the heading
        sim.SimStep();
        ChartPainter chart(sim, englishTable());
        const auto paint = [&](QPainter& painter) { chart.paint(painter, side, 1); };
        const QImage image = painted(paint);
        const ChartFrame frame(side, sim.picture.size, 1);

        const QPointF station = frame.at(sim.stations[0].place.wide);
        QLineF radial(station, station + QPointF(0, -180));
        radial.setAngle(90 - (60 - heading));
        EXPECT_GT(inkAlong(image, radial, look::fromSurface(sim.picture.radialsI2.course.colour)),
                  0.6);

        // The left half of the north arrow is filled, the right one is not.
        const QRectF plate = toQt(NorthArrow(frame).plate);
        QTransform turn;
        turn.translate(plate.center().x(), plate.top() + 15 * frame.textScale);
        turn.rotate(-heading);
        for (const int half : {-1, 1})
            EXPECT_EQ(inkAlong(image, turn.map(QLineF(2.5 * half, -1, 2.5 * half, 8)),
                               look::day.ink) > 0.7,
                      half == -1)
                << half;

        Lettering lettering;
        QPainter writer(&lettering);
        paint(writer);
        writer.end();
        const auto& texts = lettering.texts;
        ASSERT_TRUE(texts.contains("R-060")) << testing::PrintToString(texts);
        const double along = texts.at("R-060") - (60 - heading - 90);
        EXPECT_NEAR(std::remainder(along, 180), 0, 0.5);
        EXPECT_LE(std::abs(texts.at("R-060")), 90.5);
        for (const auto& [text, angle] : texts)
            EXPECT_TRUE(text == "R-060" || angle == 0) << text << ' ' << angle;
        EXPECT_TRUE(texts.contains("VOR1"));
    }
}

} // namespace
} // namespace tarnel
