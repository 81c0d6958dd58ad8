#include "core/angle.h"
#include "instrument_fixture.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

// Left edges of the knobs of the small form.
constexpr double bugLeft = 2800;
constexpr Point bugKnob{bugLeft + 100, 3100};
constexpr Point obsKnob{100, 3200};
constexpr Point selector{3100, 50};

Point besides(Point place, double dx) {
    return {place.x + dx, place.y};
}

TEST(InstrumentMouse, headingBugKnob) {
    PanelInstrument rmi(InstrumentKind::rmi);
    constexpr auto left = MouseButton::left;
    constexpr auto other = MouseButton::other;
    const std::tuple<std::int16_t, double, MouseButton, int> drags[] = {
        {0, -40, left, 359},    {0, 40, left, 1},      {350, 800, left, 10},
        {90, 14400, left, 90},  {0, 14400, left, 360}, {340, 800, left, 360},
        {90, 2500, other, 100}, {90, 100, other, 90},  {10, -5000, other, 350},
    };
    for (const auto& [base, twips, button, result] : drags) {
        rmi.c_HDGbug = base;
        rmi.c_HDGbugChange = 0;
        EXPECT_EQ(rmi.mouse.down(bugKnob), InstrumentArea::headingBugKnob);
        rmi.mouse.move(besides(bugKnob, twips), button);
        rmi.mouse.up(besides(bugKnob, twips));
        EXPECT_EQ(rmi.c_HDGbug, result) << base << " by " << twips;
        EXPECT_EQ(rmi.c_HDGbugChange, 1);
    }
    PanelInstrument dg(InstrumentKind::dg);
    dg.angle = 290;
    dg.mouse.doubleClick(bugKnob);
    EXPECT_EQ(dg.c_HDGbug, 70);
    EXPECT_EQ(dg.c_HDGbugChange, 1);
    EXPECT_EQ(dg.mouse.down(obsKnob), InstrumentArea::none) << "it has no course";
    PanelInstrument vor(InstrumentKind::vor);
    vor.mouse.doubleClick(bugKnob); // it has no bug
    vor.mouse.stepKnob(InstrumentArea::headingBugKnob, 1);
    EXPECT_EQ(vor.c_HDGbugChange, 0);
}

TEST(InstrumentMouse, aSetFromOutsideMovesTheNextDragOnly) {
    PanelInstrument hsi(InstrumentKind::hsi);
    hsi.c_HDGbug = 100;
    hsi.mouse.down({bugLeft, 3100}); // a press at the very edge is a live drag
    hsi.mouse.move({bugLeft + 400, 3100}, MouseButton::left);
    EXPECT_EQ(hsi.c_HDGbug, 110);
    hsi.c_HDGbug = 200;
    hsi.mouse.move({bugLeft + 800, 3100}, MouseButton::left);
    EXPECT_EQ(hsi.c_HDGbug, 120);
    hsi.mouse.up({bugLeft + 800, 3100});
    hsi.mouse.move({bugLeft + 1600, 3100}, MouseButton::left);
    EXPECT_EQ(hsi.c_HDGbug, 120) << "not held any more";
    hsi.mouse.down(bugKnob);
    hsi.mouse.move(besides(bugKnob, 40), MouseButton::left);
    EXPECT_EQ(hsi.c_HDGbug, 121) << "goes on from the last drag";

    hsi.c_MouseOBS = 50;
    hsi.mouse.down(obsKnob);
    hsi.mouse.move(besides(obsKnob, 400), MouseButton::left);
    EXPECT_EQ(hsi.c_MouseOBS, 40);
}

TEST(InstrumentMouse, obsKnobTurnsTheOtherWay) {
    PanelInstrument vor(InstrumentKind::vor);
    vor.c_OBS = 123;
    vor.mouse.down(obsKnob);
    vor.mouse.move(besides(obsKnob, 60), MouseButton::left);
    EXPECT_EQ(vor.c_MouseOBS, 358.5) << "counts from 0, in fractions";
    EXPECT_EQ(vor.c_MouseOBS_HSI, 358.5);
    EXPECT_EQ(vor.c_OBSKnobchange, 1);
    vor.mouse.move(besides(obsKnob, -500), MouseButton::other);
    EXPECT_EQ(vor.c_MouseOBS, 2);
    vor.mouse.up(besides(obsKnob, -500));
    vor.mouse.down(obsKnob);
    vor.mouse.move(besides(obsKnob, -400), MouseButton::left);
    EXPECT_EQ(vor.c_MouseOBS, 12);
}

// Heading 30 on the HSI. The numerals 3, E and 12 are 30 degrees apart.
TEST(InstrumentMouse, theDialGoesRoundWithTheHandWhereACourseIsSeen) {
    struct Dial {
        InstrumentKind kind;
        std::int32_t angle;
        double pressed, dragged; ///< the course after a press on E, and 30 degrees clockwise of it
    };
    for (const Dial& dial : {Dial{InstrumentKind::vor, 0, 90, 60},
                             {InstrumentKind::vor, 340, 90, 60},
                             {InstrumentKind::hsi, 330, 90, 120}}) {
        PanelInstrument instrument(dial.kind);
        instrument.feed(0, 0, 0, dial.angle);
        const auto numerals = instrument.picture.Label1;
        EXPECT_EQ(instrument.mouse.down(numerals[3].anchor), InstrumentArea::card);
        EXPECT_EQ(instrument.c_MouseOBS, 360 - dial.pressed);
        EXPECT_EQ(instrument.c_MouseOBS_HSI, 360 - dial.pressed);
        EXPECT_EQ(instrument.c_OBSKnobchange, 1);
        instrument.mouse.move(numerals[4].anchor, MouseButton::left);
        EXPECT_EQ(instrument.c_MouseOBS, 360 - dial.dragged);
        instrument.mouse.move(numerals[8].anchor, MouseButton::left);
        const double left = instrument.c_MouseOBS;
        EXPECT_EQ(left, intoCircle(left));
        instrument.mouse.up({0, 0});
        instrument.mouse.move(numerals[3].anchor, MouseButton::left);
        EXPECT_EQ(instrument.c_MouseOBS, left);
        EXPECT_EQ(instrument.mouse.down({1927, 1927}), InstrumentArea::none);
    }
    for (const auto kind : {InstrumentKind::adf, InstrumentKind::rmi, InstrumentKind::dg}) {
        PanelInstrument instrument(kind);
        instrument.angle = 330;
        EXPECT_EQ(instrument.mouse.down(instrument.picture.Label1[3].anchor), InstrumentArea::none);
        instrument.mouse.move(instrument.picture.Label1[4].anchor, MouseButton::left);
        EXPECT_EQ(instrument.c_OBSKnobchange, 0);
    }
}

TEST(InstrumentMouse, bugIsTakenOnTheRimAndFollowsTheHand) {
    const auto rim = [](const UserControl_1& instrument, double bearing) {
        const double half = instrument.picture.size / 2;
        const double radius =
            0.7 * half * cardScaleOf(static_cast<InstrumentKind>(instrument.Display.get()));
        return Rotate(toInt16(bearing), {half, half}, {half, half - radius});
    };
    for (const auto kind : {InstrumentKind::rmi, InstrumentKind::hsi, InstrumentKind::dg}) {
        PanelInstrument instrument(kind);
        instrument.feed(0, 0, 0, 300); // heading 60
        instrument.c_HDGbug = 350;     // at 290 on the dial
        EXPECT_EQ(instrument.mouse.down(rim(instrument, 305)), InstrumentArea::none);
        EXPECT_EQ(instrument.mouse.down(rim(instrument, 293)), InstrumentArea::headingBug);
        EXPECT_EQ(instrument.c_HDGbug, 350) << "it does not jump";
        instrument.mouse.move(rim(instrument, 323), MouseButton::left);
        EXPECT_EQ(instrument.c_HDGbug, 20);
        instrument.angle = 290; // the aircraft turns meanwhile
        instrument.mouse.move(rim(instrument, 323), MouseButton::left);
        EXPECT_EQ(instrument.c_HDGbug, 30) << "it stays under the hand";
        EXPECT_EQ(instrument.c_HDGbugChange, 1);
    }
    PanelInstrument vor(InstrumentKind::vor);
    EXPECT_EQ(vor.mouse.down(rim(vor, 0)), InstrumentArea::none) << "it has no bug";
}

TEST(InstrumentMouse, selectorGoesRound) {
    for (const auto kind : {InstrumentKind::rmi, InstrumentKind::vor, InstrumentKind::hsi}) {
        PanelInstrument instrument(kind);
        instrument.mouse.click(selector);
        EXPECT_EQ(instrument.c_NAVselect, 2);
        instrument.mouse.doubleClick(selector); // the second press of a fast pair
        instrument.mouse.up(selector);
        EXPECT_EQ(instrument.c_NAVselect, 1);
        EXPECT_EQ(instrument.c_ADFCardselect, 1);
    }
    PanelInstrument adf(InstrumentKind::adf);
    adf.mouse.down(selector);
    adf.mouse.up({0, 0});
    EXPECT_EQ(adf.c_ADFCardselect, 1) << "released elsewhere";
    adf.mouse.click(selector);
    EXPECT_EQ(adf.c_ADFCardselect, 2);
    EXPECT_EQ(adf.picture.Image1.file, "pictures/QXRadfs.jpg");
    EXPECT_EQ(adf.mouse.down(obsKnob), InstrumentArea::none)
        << "a slaved card is not turned by hand";
    PanelInstrument dg(InstrumentKind::dg);
    dg.mouse.click(selector);
    EXPECT_EQ(dg.c_NAVselect, 1);
}

TEST(InstrumentMouse, wheelAndKeysStep) {
    PanelInstrument hsi(InstrumentKind::hsi);
    const std::tuple<std::int16_t, int, int> steps[] = {
        {359, 1, 360}, {360, 1, 1}, {0, -1, 359}, {10, 15, 25}};
    for (const auto& [from, count, to] : steps) {
        hsi.c_HDGbug = from;
        hsi.mouse.stepKnob(InstrumentArea::headingBugKnob, count);
        EXPECT_EQ(hsi.c_HDGbug, to);
    }
    hsi.mouse.stepKnob(InstrumentArea::obsKnob, 1);
    EXPECT_EQ(hsi.c_MouseOBS, 359);
    EXPECT_EQ(hsi.c_MouseOBS_HSI, 359);
    EXPECT_EQ(hsi.c_OBSKnobchange, 1);
    hsi.mouse.stepKnob(InstrumentArea::selector, 3);
    EXPECT_EQ(hsi.c_NAVselect, 2);
}

TEST(InstrumentMouse, lockedKnobsTakeNoMouse) {
    PanelInstrument hsi(InstrumentKind::hsi);
    hsi.feed(0, 0, 0, 0);
    hsi.mouse.down(obsKnob);
    hsi.c_DisableKnobs = 0;
    hsi.mouse.move(besides(obsKnob, 400), MouseButton::left);
    hsi.mouse.up(obsKnob);
    for (const Point place : {bugKnob, obsKnob, selector, hsi.picture.Label1[3].anchor}) {
        EXPECT_EQ(hsi.mouse.down(place), InstrumentArea::none);
        hsi.mouse.move(besides(place, 400), MouseButton::left);
        hsi.mouse.up(place);
        hsi.mouse.doubleClick(place);
    }
    for (const auto area :
         {InstrumentArea::obsKnob, InstrumentArea::headingBugKnob, InstrumentArea::selector,
          InstrumentArea::card, InstrumentArea::headingBug})
        hsi.mouse.stepKnob(area, 1);
    EXPECT_EQ(hsi.c_HDGbugChange, 0);
    EXPECT_EQ(hsi.c_OBSKnobchange, 0);
    EXPECT_EQ(hsi.c_NAVselect, 1);
    hsi.c_DisableKnobs = 7;
    EXPECT_EQ(hsi.mouse.down(bugKnob), InstrumentArea::headingBugKnob);
}

// Its arrow stands on the localizer's course; the VOR indicator's card still shows the one turned.
TEST(InstrumentMouse, aCourseThatALocalizerHidesIsNotTurned) {
    for (const auto& [kind, turns] :
         {std::pair{InstrumentKind::hsi, false}, {InstrumentKind::vor, true}}) {
        PanelInstrument instrument(kind);
        instrument.mouse.down(obsKnob);
        instrument.c_LOCEN = -8.5;
        instrument.mouse.move(besides(obsKnob, 400), MouseButton::left);
        instrument.mouse.up(obsKnob);
        EXPECT_EQ(instrument.c_OBSKnobchange, turns) << "held already";
        instrument.mouse.stepKnob(InstrumentArea::obsKnob, 1);
        instrument.mouse.click(instrument.picture.Label1[3].anchor);
        EXPECT_EQ(instrument.c_OBSKnobchange, turns);
        EXPECT_EQ(instrument.picture.Image4.enabled, turns);
        instrument.c_LOCEN = 0;
        instrument.mouse.click(instrument.picture.Label1[3].anchor);
        EXPECT_EQ(instrument.c_OBSKnobchange, 1);
    }
}

} // namespace
} // namespace tarnel
