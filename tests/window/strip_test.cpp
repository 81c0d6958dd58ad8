#include "window/student_fixture.h"
#include "window/widgets/replay_bar.h"

#include <QSpinBox>
#include <QStackedWidget>

namespace tarnel {
namespace {

/// A student at the control strip.
class StripStudent : public Student {
  protected:
    void SetUp() override { open(); }
    UserControl2& sim() { return form->UserControl11; }
    int page() { return window->findChild<QStackedWidget*>()->currentIndex(); }
    /// A flight of so many seconds, at rest, with the replay before it.
    void record(int seconds = 60) {
        click("Command6");
        fly(seconds);
        click("Command6");
    }
    void clickShown(const char* name) {
        QTest::mouseClick(&findShown(name), Qt::LeftButton);
        settle();
    }
};

TEST_F(StripStudent, TurnsThePagesAndKeepsStartAndSpeedInSight) {
    EXPECT_EQ(page(), 1);
    const char* const tabs[] = {"PageChart", "PageReplay", "PageWind", "PageStations"};
    for (int i = 3; i >= 0; --i) {
        turnTo(tabs[i]);
        EXPECT_EQ(page(), i);
        for (const char* always : {"Command6", "Option5", "Option8"})
            EXPECT_TRUE(find(always).isVisible()) << always;
        EXPECT_TRUE(find<QLabel>("Text1_16").isVisible());
    }
    auto& bar = find<QTabBar>("Pages");
    for (int i = 1; i <= 3; ++i) {
        QTest::keyClick(&bar, Qt::Key_Right);
        settle();
        EXPECT_EQ(page(), i) << "by the arrow keys";
    }
    click("Command6");
    EXPECT_EQ(bar.currentIndex(), 1);
    EXPECT_EQ(page(), 1) << "a start shows the replay's page";
}

TEST_F(StripStudent, SeesTheFlightTheReplayAndAHeldKnobMoveByThemselves) {
    window->startTimers();
    form->rateQuadruple.click();
    click("Command6");
    EXPECT_TRUE(QTest::qWaitFor([this] { return sim().recording.sampleIndex() >= 3; }));
    form->APControlFace1.mouseDown(AutopilotKnob::airSpeed, 0);
    form->APControlFace1.mouseMove(500, MouseButton::left);
    EXPECT_TRUE(QTest::qWaitFor([this] { return sim().c_TAS >= 140; }));
    form->APControlFace1.mouseUp();
    click("Command6");
    form->replayPage.bar.scrollTo(1);
    clickShown("Option11");
    EXPECT_TRUE(QTest::qWaitFor([this] { return sim().presentSampleIndex() == 3; }));
}

/// A flag that each tick clears tells whether there are any.
TEST_F(StripStudent, HasAProgramThatRestsUntilSomethingComes) {
    const auto ticks = [this](int milliseconds) {
        sim().c_HDGchanged = 1;
        return QTest::qWaitFor([this] { return sim().c_HDGchanged == 0; }, milliseconds);
    };
    window->startTimers();
    EXPECT_TRUE(ticks(2000));
    QTest::qWait(500);
    EXPECT_FALSE(ticks(300)) << "at rest";
    QTest::keyClick(window.get(), Qt::Key_T);
    EXPECT_TRUE(ticks(2000));
    sim().c_CurrentComment = "Here";
    QTest::keyClick(window.get(), Qt::Key_T);
    const bool shown = form->commentPanel.mark.visible();
    EXPECT_TRUE(QTest::qWaitFor([&] { return form->commentPanel.mark.visible() != shown; }, 5000));
}

TEST_F(StripStudent, EntersTheWind) {
    turnTo("PageWind");
    auto& direction = findShown<QSpinBox>("WindDirection");
    auto& speed = findShown<QSpinBox>("WindSpeed");
    const auto type = [this](QSpinBox& field, const char* text) {
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QString::fromLatin1(text));
        settle(); // what is typed stands, though the wind is still another
        QTest::keyClick(&field, Qt::Key_Return);
        settle();
    };
    type(direction, "270");
    type(speed, "20");
    EXPECT_EQ(sim().c_wind.get(), "270/20");
    EXPECT_TRUE(find("Option13").isChecked());

    clickShown("WindOff");
    EXPECT_EQ(speed.value(), 0);
    clickShown("Option13");
    EXPECT_EQ(direction.value(), 270);
    EXPECT_EQ(speed.value(), 20);
}

TEST_F(StripStudent, IsNotToldAWindByChanceBeforeAskingForIt) {
    sim().clockSeed = [] { return 7U; };
    turnTo("PageWind");
    form->windDesk.setManual(270, 20);
    clickShown("Option14");
    ASSERT_NE(sim().c_wind.get(), "270/20");
    auto& direction = findShown<QSpinBox>("WindDirection");
    auto& speed = findShown<QSpinBox>("WindSpeed");
    EXPECT_EQ((direction.text() + speed.text()).trimmed(), "") << "no figures, of no wind";
    EXPECT_EQ(findShown<QLabel>("Label1").text(), "hidden");
    clickShown("Check8");
    EXPECT_EQ(speed.value(), sim().wind.speed);
    EXPECT_EQ(findShown<QLabel>("Label1").text().toStdString(), sim().c_wind.get());
    clickShown("Check8");
    EXPECT_EQ(speed.text().trimmed(), "");
    direction.stepUp();
    settle();
    EXPECT_EQ(sim().c_wind.get(), "5/0") << "a step on an empty field counts from 0";
    EXPECT_EQ(direction.text(), "5°");

    clickShown("Option14");
    for (const auto key : {Qt::Key_Backspace, Qt::Key_0}) {
        speed.setFocus();
        speed.selectAll();
        ASSERT_NE(sim().c_wind.get(), "0/0");
        QTest::keyClick(&speed, key);
        QTest::keyClick(&speed, Qt::Key_Return);
        settle();
    }
    EXPECT_EQ(sim().c_wind.get(), "0/0") << "a 0 is a figure";
    EXPECT_EQ(speed.text(), "0 kt");
}

TEST_F(StripStudent, SeesBehindABoxWhatItSays) {
    click("Command6");
    std::vector<std::string> shown;
    world.behind = [&] {
        shown = {find("Command6").text().toStdString(),
                 find<QLabel>("StatusPanel4").text().toStdString()};
    };
    form->windPage.random.click();
    sim().slot(Slot::vor1).dme = 80.1;
    form->Timer1(); // out of the practise area; nothing else comes to paint the window
    EXPECT_THAT(shown, testing::ElementsAre("&Start SIM", "[W]ind random"));
    sim().mouse.down(ChartButton::left, {1000, 1000});
    form->documents.showAbout();
    EXPECT_FALSE(sim().mouse.holds()) << "the box takes the release";
}

TEST_F(StripStudent, DragsTheReplayBar) {
    record(120);
    auto& bar = findShown<ReplayBar>("HScroll1");
    const int last = form->replayPage.bar.max();
    ASSERT_GT(last, 80);
    EXPECT_EQ(bar.value(), last);
    const double newest = sim().aircraft.published().latitude;

    const int middle = bar.height() / 2;
    QTest::mousePress(&bar, Qt::LeftButton, {}, {1, middle});
    settle();
    EXPECT_EQ(sim().presentSampleIndex(), 1) << "a press takes the bar there";
    for (int x = 2; x < bar.width(); x += 3)
        QTest::mouseMove(&bar, {x, middle});
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, {bar.width() / 2, middle});
    settle();
    const int there = bar.value();
    EXPECT_NEAR(there, last / 2, 3);
    EXPECT_EQ(sim().presentSampleIndex(), there) << "the last place is never lost";
    EXPECT_LT(sim().aircraft.published().latitude, newest);
    for (const auto& [key, sample] : {std::pair(Qt::Key_Right, there + 1), {Qt::Key_Home, 1}}) {
        QTest::keyClick(&bar, key);
        settle();
        EXPECT_EQ(sim().presentSampleIndex(), sample);
    }
    EXPECT_THAT(findShown<QLabel>("ReplayClock").text().toStdString(),
                testing::EndsWith(" / 01:59"));
}

// A fast hand asks for more samples than there are frames; each frame asks for one.
TEST(ReplayBarTest, AsksOncePerFrameWhileDragging) {
    ReplayBar bar;
    bar.resize(400, 20);
    bar.showPlace(6000, 6000);
    std::vector<int> asked;
    bar.onScroll = [&](int value) { asked.push_back(value); };
    QTest::mousePress(&bar, Qt::LeftButton, {}, {10, 10});
    for (int x = 11; x < 390; ++x)
        QTest::mouseMove(&bar, {x, 10});
    EXPECT_LT(asked.size(), 40U);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, {300, 10});
    EXPECT_EQ(asked.back(), bar.value());
    EXPECT_TRUE(std::adjacent_find(asked.begin(), asked.end()) == asked.end());
}

TEST_F(StripStudent, SeesTheLampsOnlyWithAReference) {
    record(8);
    auto& lamps = find<QWidget>("ReferenceLamps");
    EXPECT_FALSE(lamps.isVisible());
    for (int i = 1; i <= 3; ++i) {
        GeoPosition at = sim().aircraft.published();
        at.latitude += 1.5 / 60;
        sim().reference.append(at);
    }
    form->replayPage.bar.scrollTo(3);
    settle();
    ASSERT_TRUE(lamps.isVisible());
    EXPECT_THAT(lamps.accessibleName().toStdString(),
                testing::MatchesRegex("Off track 1.[0-9] NM"));
    EXPECT_EQ(lamps.focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    form->replayPage.bar.scrollTo(5);
    settle();
    EXPECT_FALSE(lamps.isVisible());
}

} // namespace
} // namespace tarnel
