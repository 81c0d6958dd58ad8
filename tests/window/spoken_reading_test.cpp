#include "instruments/instrument_fixture.h"
#include "strings/tables.h"
#include "window/spoken_reading.h"

#include <gtest/gtest.h>

namespace tarnel {

namespace {

using enum InstrumentKind;

std::string spoken(const UserControl_1& instrument) {
    return spokenReading(instrument, englishTable());
}

TEST(SpokenReading, SaysHeadingCourseDotsFlagAndBugOfAnHsi) {
    PanelInstrument hsi(InstrumentKind::hsi);
    hsi.c_HDGbug = 7;
    hsi.feed(294, 110, 270, 270);
    EXPECT_EQ(spoken(hsi), "heading 090, course 110, 2 dots right, TO, heading bug 007");
    hsi.feed(111, 110, 270, 270);
    EXPECT_EQ(spoken(hsi), "heading 090, course 110, 0.5 dots left, FROM, heading bug 007");
}

TEST(SpokenReading, RoundsToHalfDotsAndStopsAtFive) {
    PanelInstrument vor(InstrumentKind::vor);
    vor.feed(112, 110, 250, 250);
    EXPECT_EQ(spoken(vor), "course 110, one dot left, FROM");
    vor.feed(110, 110, 250, 250);
    EXPECT_EQ(spoken(vor), "course 110, centred, FROM");
    vor.feed(140, 110, 250, 250);
    EXPECT_EQ(spoken(vor), "course 110, 5 dots left, FROM");
}

TEST(SpokenReading, SaysNothingOfAFrozenNeedle) {
    PanelInstrument vor(InstrumentKind::vor);
    vor.feed(294, 110, 250, 250);
    vor.feed(200, 110, 251, 251);
    EXPECT_EQ(spoken(vor), "course 110, no signal");
}

TEST(SpokenReading, TakesTheDotsOfALocalizerFromItsOwnFullScale) {
    PanelInstrument hsi(InstrumentKind::hsi);
    hsi.feed(291, 110, 270, 270, -6);
    EXPECT_EQ(spoken(hsi), "heading 090, course 110, 2.5 dots right, localizer, heading bug 000");
}

TEST(SpokenReading, ReadsNeedlesFromTheCardBelowThem) {
    PanelInstrument rmi(InstrumentKind::rmi);
    rmi.feed(30, 0, 270, 270);
    EXPECT_EQ(spoken(rmi), "heading 090, needle one 120, needle two 120, heading bug 000");
    PanelInstrument adf(InstrumentKind::adf);
    adf.feed(40, 0, 0, 0);
    EXPECT_EQ(spoken(adf), "heading 360, bearing 040");
}

TEST(SpokenReading, SaysThatTheKnobsAreLocked) {
    PanelInstrument gyro(InstrumentKind::dg);
    gyro.feed(0, 0, 0, 300);
    gyro.c_DisableKnobs = 0;
    EXPECT_EQ(spoken(gyro), "heading 060, heading bug 000, locked");
}

TEST(SpokenDigits, PutsThePointAndNamesDashesAndDarkness) {
    NAVControlFace nav;
    EXPECT_EQ(spokenDigits(nav.frequency, 3, englishTable()), "switched off");
    nav.ShowFrequency("113.60");
    EXPECT_EQ(spokenDigits(nav.frequency, 3, englishTable()), "113.60");
    ADFControlFace adf;
    adf.ShowFrequency("365");
    EXPECT_EQ(spokenDigits(adf.frequency, 0, englishTable()), "365");
}

TEST(SpokenDigits, SaysADmesDistanceAndSpeedTogether) {
    DMEControlFace dme;
    EXPECT_EQ(spokenDme(dme, englishTable()), "switched off");
    dme.c_DMEnm = 117;
    dme.c_DMEkt = 96;
    EXPECT_EQ(spokenDme(dme, englishTable()), "DME 11.7 NM, 096 kt");
    dme.c_DMEnm = -1;
    EXPECT_EQ(spokenDme(dme, englishTable()), "no signal");
}

} // namespace

} // namespace tarnel
