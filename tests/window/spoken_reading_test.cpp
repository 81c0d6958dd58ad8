#include "instruments/instrument_fixture.h"
#include "window/dials/instrument_view.h"
#include "window/dials/spoken_reading.h"
#include "window/student_fixture.h"

#include <QAccessible>

namespace tarnel {

namespace {

using enum InstrumentKind;

std::string spoken(const UserControl_1& instrument, const SpokenStations& stations = {}) {
    return spokenReading(instrument, stations, englishTable());
}

TEST(SpokenReading, SaysHeadingStationCourseDotsFlagAndBugOfAnHsi) {
    PanelInstrument hsi(InstrumentKind::hsi);
    const SpokenStations stations{SpokenStation{"VOR 1 MUN", true}, {}};
    hsi.c_HDGbug = 7;
    hsi.feed(294, 110, 270, 270);
    EXPECT_EQ(spoken(hsi, stations),
              "heading 090, VOR 1 MUN, course 110, 2 dots right, TO, heading bug 007");
    hsi.c_RMIoverlayEN = 1;
    hsi.feed(111, 110, 270, 270);
    EXPECT_EQ(spoken(hsi), "heading 090, course 110, 0.5 dots left, FROM, bearing 291, "
                           "heading bug 007");
}

// Half dots of 2 degrees on a VOR, tenths of a dot of 0.4 degrees on a localizer.
TEST(SpokenReading, RoundsDotsStopsAtFiveAndIsCentredWithinAQuarter) {
    struct Dots {
        double locEn, radial;
        std::string words;
    };
    for (const Dots& dots : {Dots{0, 112, "one dot left, FROM"},
                             {0, 110.5, "centred, FROM"},
                             {0, 110.6, "0.5 dots left, FROM"},
                             {0, 140, "5 dots left, FROM"},
                             {-6, 290.4, "one dot right, localizer"},
                             {-6, 290.1, "centred, localizer"},
                             {-6, 290.12, "0.3 dots right, localizer"},
                             {-6, 288.92, "2.7 dots left, localizer"}}) {
        PanelInstrument vor(InstrumentKind::vor);
        vor.feed(dots.radial, 110, 250, 250, dots.locEn);
        EXPECT_EQ(spoken(vor), "course 110, " + dots.words);
    }
}

TEST(SpokenReading, ReadsNeedlesFromTheCardBelowThemAndNamesTheirStations) {
    PanelInstrument rmi(InstrumentKind::rmi);
    rmi.feed(30, 0, 270, 270);
    EXPECT_EQ(spoken(rmi), "heading 090, needle one 120, needle two 120, heading bug 000");
    EXPECT_EQ(spoken(rmi, {SpokenStation{"LOC 1 ILS", false}, SpokenStation{"NDB 1 MNE", true}}),
              "heading 090, LOC 1 ILS, no signal, NDB 1 MNE, needle two 120, heading bug 000");
    PanelInstrument adf(InstrumentKind::adf);
    adf.feed(40, 0, 0, 0);
    EXPECT_EQ(spoken(adf), "heading 360, bearing 040");
    PanelInstrument gyro(InstrumentKind::dg);
    gyro.feed(0, 0, 0, 300);
    gyro.c_DisableKnobs = 0;
    EXPECT_EQ(spoken(gyro), "heading 060, heading bug 000, locked");
    PanelInstrument frozen(InstrumentKind::vor);
    frozen.feed(294, 110, 250, 250);
    frozen.feed(200, 110, 251, 251);
    EXPECT_EQ(spoken(frozen), "course 109, no signal");
}

// As the panel tells it, from the first moment on and whatever is tuned.
TEST_F(Student, HearsWhichStationIsRead) {
    open();
    const auto heard = [this](const char* name) {
        settle();
        return QAccessible::queryAccessibleInterface(&find<QWidget>(name))
            ->text(QAccessible::Description)
            .toStdString();
    };
    const auto contains = [](const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    };
    UserControl2& sim = form->UserControl11;
    const std::string first = " " + sim.slot(Slot::vor1).name.get() + ", ";
    const std::string second = " " + sim.slot(Slot::vor2).name.get() + ", ";
    EXPECT_TRUE(contains(heard("UserControl13_1"), "VOR 1" + first + "course"));
    EXPECT_TRUE(contains(heard("UserControl13_0"), "VOR 1" + first + "needle one"));
    EXPECT_TRUE(contains(heard("DMEControlFace1"), "VOR 1" + first + "DME "));
    form->NAVControlFace1.stepUp();
    EXPECT_TRUE(contains(heard("UserControl13_1"), "VOR 2" + second + "course"));
    sim.slot(Slot::vor1).dmeEnabled = sim.slot(Slot::vor2).enabled = off;
    EXPECT_TRUE(contains(heard("UserControl13_1"), "no signal"));
    EXPECT_TRUE(contains(heard("DMEControlFace1"), "VOR 1" + first + "no signal"));
}

TEST(SpokenDigits, PutThePointAndNameDashesAndDarkness) {
    NAVControlFace nav;
    EXPECT_EQ(spokenDigits(nav.frequency, 3, englishTable()), "switched off");
    nav.ShowFrequency("113.60");
    EXPECT_EQ(spokenDigits(nav.frequency, 3, englishTable()), "113.60");
    DMEControlFace dme;
    EXPECT_EQ(spokenDme(dme, {}, englishTable()), "switched off");
    for (const auto& [tenths, words] : std::initializer_list<std::pair<std::int16_t, const char*>>{
             {117, "DME 11.7 NM, 096 kt"}, {1217, "DME 121 NM, 096 kt"}, {-1, "no signal"}}) {
        dme.c_DMEnm = tenths;
        dme.c_DMEkt = 96;
        EXPECT_EQ(spokenDme(dme, {}, englishTable()), words);
    }
}

} // namespace

} // namespace tarnel
