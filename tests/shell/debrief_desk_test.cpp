#include "shell/debrief_csv.h"
#include "shell/trainer_fixture.h"

#include <algorithm>

namespace tarnel {
namespace {

using testing::ElementsAre;

/// A flight in memory, debriefed at a task that the student chooses.
class DebriefTest : public TrainerTest {
  protected:
    /// A flight of a minute that turns to `heading`.
    void flyTo(int heading) {
        start();
        fly(20);
        form.coupling.setHeadingBug(static_cast<std::int16_t>(heading));
        fly(40);
        start();
        couple();
    }
    void openAt(const TaskChoice& task) {
        form.debriefControls.item.click();
        form.debriefControls.task.click();
        form.debrief.choose(task);
        form.debriefControls.judge.click();
        couple();
    }
    void close() {
        form.debriefControls.close.click();
        couple();
    }
    [[nodiscard]] const std::vector<Finding>& findings() const {
        return form.debrief.attempt()->debrief.findings;
    }
    [[nodiscard]] std::vector<int> numbersBeside() const {
        std::vector<int> numbers;
        for (const Attempt& each : form.debrief.compared())
            numbers.push_back(each.number);
        return numbers;
    }

    const TaskChoice track{.kind = TaskKind::trackTo, .station = Slot::vor1, .course = 90};
};

TEST_F(DebriefTest, FindingAndMomentLeadToEachOther) {
    flyTo(200);
    openAt(track);
    ASSERT_GE(findings().size(), 1U);
    ASSERT_EQ(form.debrief.finding(), 0U) << "the worst is looked at first";
    EXPECT_EQ(form.debrief.moment(), findings()[0].samples.first);
    EXPECT_EQ(sim().presentSampleIndex(), findings()[0].samples.first + 1);
    form.debrief.goTo(20);
    EXPECT_EQ(sim().presentSampleIndex(), 21);
    EXPECT_EQ(form.replayPage.bar.value(), 21);
    form.replayPage.bar.scrollTo(6);
    EXPECT_EQ(form.debrief.moment(), 5);
    form.debrief.goTo(100000);
    EXPECT_EQ(form.debrief.moment(), sim().c_TraceBufferMax - 1);
    for (std::size_t i = 0; i < findings().size(); ++i) {
        form.debrief.chooseFinding(i);
        EXPECT_EQ(form.debrief.moment(), findings()[i].samples.first);
    }
    form.debrief.goTo(0);
    int last = -1;
    for (form.debriefControls.next.click(); form.debrief.moment() > last;
         form.debriefControls.next.click()) {
        last = form.debrief.moment();
        EXPECT_EQ(findings()[*form.debrief.finding()].samples.first, last);
    }
    const auto latest = std::ranges::max_element(
        findings(), {}, [](const Finding& each) { return each.samples.first; });
    EXPECT_EQ(form.debrief.moment(), latest->samples.first);
}

TEST_F(DebriefTest, KeepsTheLastThreeAttemptsAtATask) {
    for (const int heading : {200, 100, 90, 80}) {
        flyTo(heading);
        openAt(track);
        if (heading == 90) {
            EXPECT_THAT(numbersBeside(), ElementsAre(1, 2));
            close();
            openAt(track); // the same flight is no other attempt
            EXPECT_THAT(numbersBeside(), ElementsAre(1, 2));
        }
        if (heading != 80)
            form.debriefControls.flyAgain.click();
        couple();
        EXPECT_EQ(form.debrief.isOpen(), heading == 80);
        EXPECT_EQ(sim().presentSampleIndex(), 1);
    }
    EXPECT_EQ(form.debrief.attempt()->number, 4);
    EXPECT_THAT(numbersBeside(), ElementsAre(2, 3));
    const std::string table = debriefCsv(form.debrief, form.texts);
    EXPECT_EQ(std::ranges::count(table, '\n'), 1 + sim().c_TraceBufferMax);
    EXPECT_THAT(
        table.substr(0, table.find('\n')),
        testing::AllOf(testing::HasSubstr(";#4 Needle (°)"), testing::HasSubstr(";#2 Needle (°)")));
    form.debriefControls.compare.click();
    EXPECT_THAT(numbersBeside(), ElementsAre());
    EXPECT_EQ(debriefCsv(form.debrief, form.texts).find('#'), std::string::npos);
    TaskChoice other = track;
    other.course = 91;
    openAt(other); // is open already: only the task changes
    form.debriefControls.task.click();
    form.debrief.choose(other);
    form.debriefControls.judge.click();
    EXPECT_EQ(form.debrief.attempt()->number, 1);
    EXPECT_FALSE(form.debriefControls.compare.enabled());
}

TEST_F(DebriefTest, StricterLimitsJudgeAnewAndKeepTheFinding) {
    const GeoPosition station = toPlain(inSlot(sim().stations, Slot::vor1).position);
    placeAt(station.latitude - 0.3, station.longitude, 360);
    flyTo(6);
    TaskChoice inbound = track;
    inbound.course = 360;
    inbound.joins = false;
    openAt(inbound);
    form.debrief.chooseFinding(findings().size() - 1);
    const auto tolerances = [this] {
        double sum = 0;
        for (const Finding& finding : findings())
            sum += finding.tolerance.value_or(0);
        return sum;
    };
    const FindingKind looked = findings()[*form.debrief.finding()].kind;
    form.debriefControls.limits.pick(static_cast<int>(Strictness::wide));
    const double wide = tolerances();
    form.debriefControls.limits.pick(static_cast<int>(Strictness::checkRide));
    EXPECT_LT(tolerances(), wide);
    EXPECT_EQ(findings()[*form.debrief.finding()].kind, looked);
}

TEST_F(DebriefTest, LookingChangesNothingAndClosingBringsAllBack) {
    flyTo(200);
    const auto told_ = [this] {
        return told(toPlain(sim().view.mapCenter).latitude, sim().c_MAPscale, form.replayPage.lock,
                    sim().presentSampleIndex(), form.startButton.enabled());
    };
    const std::string before = told_();
    const std::string flight = sim().sessionBytes();
    openAt(track);
    form.debrief.goTo(3);
    couple();
    EXPECT_FALSE(form.startButton.enabled());
    EXPECT_FALSE(form.editMenu.undo.enabled());
    EXPECT_FALSE(form.debriefControls.item.enabled());
    close();
    EXPECT_EQ(told_(), before);
    EXPECT_EQ(sim().sessionBytes(), flight);
    openAt(track);
    form.fileMenu.newSession.click();
    couple();
    EXPECT_FALSE(form.debrief.isOpen()) << "its flight is gone";
    EXPECT_FALSE(form.debriefControls.item.enabled()) << "nothing was flown";
}

TEST_F(DebriefTest, ProposesWhatStandsOnThePanelAndRefusesWhatIsNoTask) {
    form.inst3TypeList.pick(hsi - 1);
    setCourse(form.inst3, 110);
    flyTo(100);
    form.debriefControls.item.click();
    EXPECT_TRUE(form.debrief.choosesTask());
    EXPECT_EQ(form.debrief.choice().station, Slot::vor1);
    EXPECT_EQ(form.debrief.choice().course, 110);
    for (const auto& [choice, judged] :
         {std::pair{TaskChoice{.kind = TaskKind::reference}, false},
          std::pair{TaskChoice{.kind = TaskKind::arc, .station = Slot::ndb1}, false},
          std::pair{TaskChoice{.kind = TaskKind::arc, .station = Slot::vor2}, true},
          std::pair{TaskChoice{.kind = TaskKind::holding, .station = Slot::ndb1}, true}}) {
        form.debrief.choose(choice);
        EXPECT_EQ(form.debriefControls.judge.enabled(), judged)
            << told(choice.kind == TaskKind::arc);
    }
    const TaskChoice arc{.kind = TaskKind::arc,
                         .station = Slot::vor2,
                         .course = 30,
                         .distance = 12,
                         .clockwise = false,
                         .finalToStation = false};
    const TaskChoice holding{
        .kind = TaskKind::holding, .course = 240, .side = HoldingSide::left, .minutes = 1.5};
    for (const TaskChoice& choice : {arc, holding, track})
        EXPECT_EQ(choiceOf(*taskOf(choice, {})), choice);
}

} // namespace
} // namespace tarnel
