#include "core/rounding.h"
#include "instrument_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <vector>

namespace tarnel {
namespace {

void expectAt(Point actual, double x, double y) {
    EXPECT_NEAR(actual.x, x, 1e-6);
    EXPECT_NEAR(actual.y, y, 1e-6);
}

// The ADF's square is 3662 wide (0.95 of 3855) and moved by 96.375.
TEST(InstrumentDrawing, cardStandsAtItsAngle) {
    constexpr double off = 96.375;
    PanelInstrument adf(InstrumentKind::adf);
    adf.angle = 0;
    expectAt(adf.picture.Line1[0].from, 1831 + off, 403 + off);
    expectAt(adf.picture.Line1[0].to, 1831 + off, 641 + off);
    expectAt(adf.picture.Line1[9].from, 3259 + off, 1831 + off);
    expectAt(adf.picture.Line1[36 + 18].from, 1831 - 116 + off, 1831 + 1332 + off); // at 185
    expectAt(adf.picture.Label1[0].anchor, 1831 + off, 769 + off);
    EXPECT_EQ(adf.picture.Label1[3].caption, "E");

    const auto north = adf.picture.Label1[0].anchor;
    adf.angle = 90;
    expectAt(adf.picture.Line1[0].from, 3259 + off, 1831 + off);
    EXPECT_EQ(adf.picture.Label1[9].anchor, north);
    adf.angle = 0;
    const auto revision = adf.picture.surface.revision();
    adf.angle = 360;
    EXPECT_EQ(adf.picture.surface.revision(), revision) << "360 looks like 0";
}

TEST(InstrumentDrawing, needlesPointWhereTheyAreTold) {
    PanelInstrument rmi(InstrumentKind::rmi);
    rmi.adfradial = 90;
    rmi.adf2radial = 180;
    rmi.angle = 45;
    expectAt(rmi.picture.Line3to6[0].to, 1831 + roundToEven(0.63 * 1831) + 96.375, 1831 + 96.375);
    // The second needle is laid on the whole control.
    EXPECT_NEAR(rmi.picture.Line7to12[4].to.x, 1927.5, 0.51);
    EXPECT_NEAR(rmi.picture.Line7to12[4].to.y, 1927.5 * 1.63, 0.51);
    for (const Line& line : rmi.picture.Line7to12)
        EXPECT_TRUE(line.visible);
    EXPECT_EQ(rmi.picture.Line7to12[2].colour, 0x00FF00u);

    PanelInstrument hsi(InstrumentKind::hsi);
    hsi.c_RMIoverlayEN = 1;
    hsi.feed(270, 0, 330, 330); // heading 30, the station due east: 60 degrees to the right
    std::vector<bool> shown;
    for (const Line& line : hsi.picture.Line7to12)
        shown.push_back(line.visible);
    EXPECT_EQ(shown, (std::vector<bool>{false, false, true, true, true, false}));
    EXPECT_NEAR(hsi.picture.Line7to12[4].to.x, 1927.5 * (1 + 0.55 * 0.8660254), 1);
    EXPECT_NEAR(hsi.picture.Line7to12[4].to.y, 1927.5 * (1 - 0.55 * 0.5), 1);
    hsi.c_RMIoverlayEN = 0;
    hsi.angle = 350;
    EXPECT_FALSE(hsi.picture.Line7to12[4].visible);
}

TEST(InstrumentDrawing, vorBarTakesTheUnroundedDeviation) {
    PanelInstrument vor(InstrumentKind::vor);
    // Middle 1927.375, full travel 732.4.
    for (const auto& [radial, x] : {std::pair(0.0, 1927),
                                    {350, 2660},
                                    {349, 2660},
                                    {10, 1195},
                                    {11, 1195},
                                    {5.5, 1525},
                                    {354.5, 2330}}) {
        vor.feed(radial, 0, 0, 0);
        EXPECT_NEAR(vor.picture.Line13.from.x, x, 0.51) << radial;
        EXPECT_EQ(vor.picture.Line13.from.x, vor.picture.Line13.to.x);
        EXPECT_EQ(vor.picture.Line13.from.x, roundToEven(vor.picture.Line13.from.x));
    }
    expectAt(vor.picture.Shape2[5].centre, roundToEven(1831 + 732.4) + 96.375, 1831 + 96.375);
}

TEST(InstrumentDrawing, needleFreezesInTheAbeamSector) {
    PanelInstrument vor(InstrumentKind::vor);
    vor.feed(355.6, 0, 0, 0);
    EXPECT_EQ(vor.picture.Label2_4.caption, "");
    vor.feed(90, 0, 0, 0);
    EXPECT_EQ(vor.picture.Label2_4.caption, "/////");
    EXPECT_EQ(vor.reading().deviation, 4);
    EXPECT_FALSE(vor.reading().received);
    const double frozen = vor.picture.Line13.from.x;
    EXPECT_NEAR(frozen, 1927.375 + 0.4 * 732.4, 0.51) << "drawn from the rounded deviation";
    vor.c_OBS = 80;
    EXPECT_FALSE(vor.reading().received) << "a course alone redraws nothing";
    vor.angle = 0;
    EXPECT_TRUE(vor.reading().received);
    vor.feed(355.6, 0, 0, 0);
    vor.feed(91.5, 0, 0, 0);
    EXPECT_EQ(vor.picture.Line13.from.x, frozen);
}

TEST(InstrumentDrawing, vorPictureFollowsTheFlag) {
    PanelInstrument vor(InstrumentKind::vor, 1);
    const auto expectAfter = [&vor](auto change, const char* file) {
        change();
        EXPECT_EQ(vor.picture.Image1.file, std::string("pictures/") + file);
    };
    expectAfter([&] { vor.feed(180, 0, 0, 0); }, "QXRvor1tg.jpg");
    expectAfter([&] { vor.feed(0, 0, 0, 0); }, "QXRvor1fg.jpg");
    expectAfter([&] { vor.c_NAVselect = 2; }, "QXRvor2fg.jpg");
    expectAfter([&] { vor.feed(90, 0, 0, 0); }, "QXRvor2lg.jpg");
    expectAfter([&] { vor.LoadVORDisplay(4); }, "QXRvor2lg.jpg");
    expectAfter([&] { vor.Display = 4; }, "qxrhsi2g.jpg");
    expectAfter([&] { vor.feed(180, 0, 0, 0); }, "qxrhsi2g.jpg");
    expectAfter([&] { vor.Display = 3; }, "QXRvor2tg.jpg");     // the flag came over from the HSI
    expectAfter([&] { vor.c_NAVselect = 3; }, "qxrvor2fg.jpg"); // no receiver, no flag
    expectAfter([&] { vor.Display = 5; }, "qxrhdgg.jpg");
    vor.c_MainAppPath = "C:\\trainer\\";
    vor.c_ADFCardselect = 2;
    vor.Display = 1;
    EXPECT_EQ(vor.picture.Image1.file, "C:\\trainer\\QXRadfsg.jpg");
}

TEST(InstrumentDrawing, hsiTurnsWithCourseAndHeading) {
    PanelInstrument hsi(InstrumentKind::hsi);
    const InstrumentPicture& picture = hsi.picture;
    const double middle = 1735 + 192.75;
    hsi.feed(85, 90, 270, 270); // heading 90, course 90
    EXPECT_LT(picture.Line3to6[0].to.y, picture.Line3to6[0].from.y);
    EXPECT_NEAR(picture.Line3to6[0].to.x, middle, 0.01) << "the arrow points up";
    EXPECT_NEAR(picture.Line13.from.x, middle + 347, 0.51) << "5 degrees to the left of the line";
    EXPECT_TRUE(picture.Line15[0].visible);
    EXPECT_GT(picture.Line15[0].to.y, middle) << "FROM: the triangle points down";
    EXPECT_FALSE(picture.Text1.visible);

    hsi.feed(265, 90, 0, 0); // heading 0: the arrow points right
    EXPECT_NEAR(picture.Line3to6[0].to.y, middle, 0.01);
    EXPECT_GT(picture.Line3to6[0].to.x, middle);
    EXPECT_GT(picture.Line15[0].to.x, middle) << "TO: the triangle points along the arrow";
    EXPECT_NEAR(picture.Shape2[5].centre.y, middle + 694, 0.51) << "the dots lie across";

    hsi.feed(180, 90, 0, 0);
    EXPECT_TRUE(picture.Text1.visible) << "abeam";
    hsi.feed(91, 90, 0, 0, -6);
    EXPECT_FALSE(picture.Text1.visible);
    EXPECT_FALSE(picture.Line15[0].visible) << "a localizer has no triangle";
    EXPECT_EQ(flagText(hsi.reading().flag), "LOC");
    expectAt(picture.Line24.from, middle, 3470 - 3470 * 0.86);
    expectAt(picture.Line24.to, middle, 3470 - 3470 * 0.71);
}

TEST(InstrumentDrawing, headingBugTurnsWithTheCard) {
    PanelInstrument dg(InstrumentKind::dg);
    dg.c_HDGbug = 90;
    dg.angle = 300; // heading 60: the bug stands 30 degrees right of the top
    const Line& top = dg.picture.Line17to23[0];
    const double middle = 1927.5;
    const double x = (top.from.x + top.to.x) / 2 - middle;
    const double y = (top.from.y + top.to.y) / 2 - middle;
    EXPECT_NEAR(x / -y, 0.57735, 0.002);
    EXPECT_NEAR(std::hypot(x, y), 0.75 * 2120.25, 2);
    dg.c_HDGbug = 60;
    dg.angle = 300;
    EXPECT_NEAR((top.from.x + top.to.x) / 2, middle, 1);
}

std::set<std::string> shownParts(const InstrumentPicture& p) {
    std::set<std::string> parts;
    const auto note = [&parts](bool visible, const char* name) {
        if (visible)
            parts.insert(name);
    };
    note(p.Line17to23[6].visible, "bug");
    note(p.Image2.visible, "bug knob");
    note(p.Image3.visible, "selector");
    note(p.Image4.visible, "obs knob");
    note(p.Line16[2].visible, "aircraft");
    note(p.Line3to6[3].visible, "needle");
    note(p.Line7to12[0].visible, "needle 2");
    note(p.Line13.visible, "bar");
    note(p.Line14.visible, "tail");
    note(p.Line24.visible, "lubber");
    note(p.Shape2[10].visible, "dots");
    note(p.Label2_3.visible, "label");
    note(p.Label2_4.visible, "flag");
    return parts;
}

TEST(InstrumentDrawing, eachKindShowsItsParts) {
    UserControl_1 one; // switched through all kinds, so that nothing of the last one stays behind
    const std::set<std::string> expected[] = {
        {"selector", "obs knob", "aircraft", "needle"},
        {"bug", "bug knob", "selector", "aircraft", "needle", "needle 2", "label"},
        {"selector", "obs knob", "bar", "dots", "flag"},
        {"bug", "bug knob", "selector", "obs knob", "aircraft", "needle", "bar", "tail", "lubber",
         "dots", "label"},
        {"bug", "bug knob", "aircraft"},
    };
    for (const int display : {4, 1, 2, 3, 5, 4, 2}) {
        one.Display = static_cast<std::int16_t>(display);
        EXPECT_EQ(shownParts(one.picture), expected[display - 1]) << display;
        EXPECT_FALSE(display != 4 && (one.picture.Text1.visible || one.picture.Line15[0].visible));
    }
}

TEST(InstrumentDrawing, largeFormScalesEverything) {
    PanelInstrument rmi(InstrumentKind::rmi);
    EXPECT_EQ(rmi.picture.Label1[0].fontPoints, 11);
    EXPECT_EQ(rmi.picture.Line3to6[0].width, 3);
    rmi.c_Large = 1;
    rmi.Display = 2;
    EXPECT_EQ(rmi.picture.size, 6975);
    EXPECT_NEAR(rmi.picture.Line17to23[0].from.x, 3487.5 * (1 - 0.1 * 0.95), 1);
    EXPECT_NEAR(rmi.picture.Line7to12[4].to.y, 3487.5 * 0.37, 1);
    EXPECT_EQ(rmi.picture.Label1[0].fontPoints, 20);
    EXPECT_EQ(rmi.picture.Line7to12[0].width, 4);
    EXPECT_EQ(rmi.picture.Image2.area, (Area{5100, 5550, 1735, 1335}));
    expectAt(rmi.picture.Line16[1].from, roundToEven(6975 / 2.0 * 1.15), 3488);
    double lowest = 0;
    for (const Line& tick : rmi.picture.Line1)
        lowest = std::max(lowest, tick.from.y);
    EXPECT_NEAR(lowest, 3487.5 + 0.78 * 0.95 * 3487.5, 2);
}

TEST(InstrumentDrawing, unchangedFeedMovesNothing) {
    for (const auto kind : {InstrumentKind::adf, InstrumentKind::rmi, InstrumentKind::vor,
                            InstrumentKind::hsi, InstrumentKind::dg}) {
        PanelInstrument instrument(kind);
        instrument.c_LabelText4 = "a text that is too long for any small buffer";
        for (const std::int16_t overlay : {std::int16_t{0}, std::int16_t{1}}) {
            instrument.c_RMIoverlayEN = overlay;
            instrument.feed(123.4, 77, 200, 200);
            const auto revision = instrument.picture.surface.revision();
            instrument.feed(123.4, 77, 200, 200);
            EXPECT_EQ(instrument.picture.surface.revision(), revision);
        }
        const auto revision = instrument.picture.surface.revision();
        instrument.c_OBS = 78;
        instrument.adfradial = 9;
        EXPECT_EQ(instrument.picture.surface.revision(), revision) << "these wait for the redraw";
        instrument.angle = 201;
        EXPECT_GT(instrument.picture.surface.revision(), revision);
    }
}

} // namespace
} // namespace tarnel
