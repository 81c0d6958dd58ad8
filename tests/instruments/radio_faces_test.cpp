#include "instruments/dme_control_face.h"
#include "instruments/radio_face.h"
#include "instruments/stopwatch_face.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tarnel {
namespace {

using Pictures = std::vector<std::int16_t>;

template <class Face>
void tune(Face& face) {
    face.c_OnOff = 1;
    face.c_LockSettings = 1;
    face.c_Freq1 = "112.30";
    face.c_Freq2 = "108.45";
    face.c_Freq3 = "109.70";
    face.c_NumberOfFreqs = 3;
    face.c_SetFreq = 0;
}

/// A click may tremble by 60 twips each way.
void click(RadioFace& face) {
    face.mouseDown({100, 100});
    for (const Point tremble : {Point{40, 100}, {160, 100}, {100, 40}, {40, 160}})
        face.mouseMove(tremble);
    face.mouseUp();
}

TEST(RadioFaces, readoutsTakeTheirDigits) {
    NAVControlFace nav;
    EXPECT_EQ(nav.frequency.pictures(), (Pictures{12, 12, 12, 12, 12}));
    nav.c_Freq1 = "112.30";
    EXPECT_EQ(nav.frequency.pictures()[0], 12) << "a new text waits for its selection";
    nav.c_SetFreq = 0;
    EXPECT_EQ(nav.frequency.pictures(), (Pictures{2, 2, 3, 4, 1}));
    nav.c_SetFreq = 3;
    EXPECT_EQ(nav.frequency.pictures(), (Pictures{9, 9, 9, 9, 9}));
    nav.c_SetFreq = 99;
    EXPECT_EQ(nav.frequency.pictures(), (Pictures{12, 12, 12, 12, 12})) << "no such slot";

    ADFControlFace adf;
    adf.c_Freq2 = "369";
    adf.c_SetFreq = 1;
    EXPECT_EQ(adf.frequency.pictures(), (Pictures{4, 7, 10}));

    tvsmtimer stopwatch;
    EXPECT_EQ(stopwatch.digits.pictures(), (Pictures{1, 1, 2, 3}));
    stopwatch.minsec = "59.08";
    EXPECT_EQ(stopwatch.digits.pictures(), (Pictures{6, 10, 1, 9}));
}

TEST(RadioFaces, knobGoesRoundTheSlots) {
    const std::tuple<std::int16_t, std::vector<std::int32_t>, std::vector<std::int32_t>> rounds[] =
        {{3, {1, 2, 0}, {2, 1, 0}}, {1, {0, 0}, {0, 0}}, {0, {0, 0}, {0, 0}}};
    for (const auto& [slots, up, down] : rounds) {
        NAVControlFace face;
        tune(face);
        face.c_NumberOfFreqs = slots;
        for (const std::int32_t slot : up) {
            click(face);
            EXPECT_EQ(face.c_SetFreq, slot);
        }
        for (const std::int32_t slot : down) {
            face.stepDown();
            EXPECT_EQ(face.c_SetFreq, slot);
        }
    }
    ADFControlFace adf;
    tune(adf);
    click(adf);
    EXPECT_EQ(adf.c_SetFreq, 1);
    EXPECT_EQ(adf.frequency.pictures(), (Pictures{2, 1, 9}));
    DMEControlFace dme;
    tune(dme);
    click(dme);
    EXPECT_EQ(dme.c_SetFreq, 1);
}

TEST(RadioFaces, dragStepsEvery700TwipsAndIsNoClick) {
    NAVControlFace face;
    tune(face);
    face.mouseDown({100, 100});
    const std::pair<double, int> way[] = {{799, 0},  {800, 1},  {1499, 1}, {1500, 2}, {2200, 0},
                                          {2199, 2}, {1499, 1}, {799, 0},  {99, 2}};
    for (const auto& [x, slot] : way) {
        face.mouseMove({x, 100});
        EXPECT_EQ(face.c_SetFreq, slot) << x;
    }
    face.mouseUp();
    EXPECT_EQ(face.c_SetFreq, 2);
    face.mouseMove({5000, 100});
    EXPECT_EQ(face.c_SetFreq, 2) << "not held";
    face.mouseDown({100, 100});
    face.mouseMove({161, 100});
    EXPECT_EQ(face.c_SetFreq, 0) << "the step of the last drag, -1, is still there";
}

TEST(RadioFaces, lockedOrSwitchedOffKnobDoesNothing) {
    for (const auto& [lock, power] : {std::pair<int, int>{0, 1}, {1, 0}, {2, 1}}) {
        NAVControlFace face;
        tune(face);
        face.c_LockSettings = static_cast<std::int16_t>(lock);
        face.c_OnOff = static_cast<std::int16_t>(power);
        click(face);
        face.stepUp();
        face.stepDown();
        face.mouseDown({0, 0});
        face.mouseMove({900, 0});
        EXPECT_EQ(face.c_SetFreq, 0);
        EXPECT_EQ(face.frequency.pictures()[0], 2) << "the readout stays lit";
    }
}

TEST(RadioFaces, dmeReadouts) {
    DMEControlFace dme;
    const std::tuple<std::int16_t, std::int16_t, Pictures, Pictures> readings[] = {
        {0, 0, {1, 1, 1}, {1, 1, 1}},    {105, 98, {2, 1, 6}, {1, 10, 9}},
        {10, 120, {1, 2, 1}, {2, 3, 1}}, {-1, 120, {11, 11, 11}, {11, 11, 11}},
        {9, 7, {1, 1, 10}, {1, 1, 8}},   {999, 5, {10, 10, 10}, {1, 1, 6}},
        {1219, 5, {2, 3, 2}, {1, 1, 6}},
    };
    for (const auto& [nm, kt, distance, speed] : readings) {
        dme.c_DMEnm = nm;
        dme.c_DMEkt = kt;
        EXPECT_EQ(dme.distance.pictures(), distance) << nm;
        EXPECT_EQ(dme.speed.pictures(), speed) << nm;
        EXPECT_EQ(dme.wholeMiles(), nm >= 1000);
    }
    dme.ShowDistance("--.-");
    dme.ShowSpeed("---");
    EXPECT_EQ(dme.distance.pictures(), dme.speed.pictures());
    dme.c_BlankDisplay = 1;
    EXPECT_EQ(dme.distance.pictures(), (Pictures{12, 12, 12}));
    EXPECT_EQ(dme.frequency.pictures(), (Pictures{12, 12, 12, 12, 12}));
    dme.c_DMEnm = 42;
    const auto revision = dme.surface.revision();
    dme.c_DMEnm = 42;
    EXPECT_EQ(dme.surface.revision(), revision);
    EXPECT_EQ(dme.distance.pictures(), (Pictures{1, 5, 3}));
}

TEST(RadioFaces, dmeFollowsAReceiver) {
    DMEControlFace dme;
    tune(dme);
    dme.c_NAV1f = 2;
    EXPECT_EQ(dme.c_SetFreq, 0) << "not while on its own frequency";
    dme.selectMode(DmeMode::r1);
    EXPECT_EQ(dme.c_SetFreq, 0);
    dme.c_NAV2f = 1;
    EXPECT_EQ(dme.c_SetFreq, 0);
    dme.c_NAV1f = 2;
    EXPECT_EQ(dme.c_SetFreq, 2);
    EXPECT_EQ(dme.frequency.pictures(), (Pictures{2, 1, 10, 8, 1})) << "of the receiver";
    dme.selectMode(DmeMode::freq);
    EXPECT_EQ(dme.c_SetFreq, 0);
    EXPECT_EQ(dme.frequency.pictures(), (Pictures{2, 2, 3, 4, 1})) << "of its own dial";
}

TEST(RadioFaces, dmeSelectorTakesDragsOnEitherAxis) {
    const std::tuple<DmeMode, Point, Point, DmeMode> drags[] = {
        {DmeMode::freq, {100, 100}, {229, 100}, DmeMode::freq},
        {DmeMode::freq, {100, 100}, {230, 100}, DmeMode::r1},
        {DmeMode::freq, {100, 100}, {450, 120}, DmeMode::r2},
        {DmeMode::freq, {100, 100}, {120, 449}, DmeMode::r1},
        {DmeMode::freq, {100, 100}, {90, 450}, DmeMode::r2},
        {DmeMode::r1, {100, 100}, {-1, 100}, DmeMode::freq},
        {DmeMode::r1, {100, 100}, {0, 100}, DmeMode::r1},
        {DmeMode::r1, {100, 100}, {100, 210}, DmeMode::r2},
        {DmeMode::r1, {100, 100}, {100, -1}, DmeMode::freq},
        {DmeMode::r1, {100, 100}, {110, 100}, DmeMode::r1},
        {DmeMode::r2, {100, 100}, {110, 100}, DmeMode::r2},
    };
    for (const auto& [area, from, to, result] : drags) {
        DMEControlFace dme;
        dme.selectorDown(area, from);
        dme.selectorMove(to);
        dme.selectorUp();
        EXPECT_EQ(dme.mode(), result) << to.x << "," << to.y;
    }
}

} // namespace
} // namespace tarnel
