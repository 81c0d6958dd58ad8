#include "shell/debrief_csv.h"
#include "shell/trainer_fixture.h"

#include <algorithm>

namespace tarnel {
namespace {

using testing::ElementsAre;

/// A flight in memory, debriefed at a task that the student chooses.
class DebriefTest : public TrainerTest {
  protected:
    /// A flight of a minute, or of another time, that turns to `heading`.
    void flyTo(int heading, int seconds = 60) {
        start();
        fly(20);
        form.coupling.setHeadingBug(static_cast<std::int16_t>(heading));
        fly(seconds - 20);
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

TEST_F(DebriefTest, WritesEachAttemptInColumnsOfItsOwn) {
    EXPECT_EQ(debriefCsv(form.debrief, form.texts), "") << "nothing is plotted";
    std::vector<std::size_t> lengths;
    for (const int seconds : {40, 90, 60}) {
        flyTo(100 + seconds, seconds);
        openAt(track);
        lengths.push_back(form.debrief.attempt()->samples.size());
        if (seconds != 60)
            form.debriefControls.flyAgain.click();
        couple();
    }
    ASSERT_THAT(form.debrief.compared(), testing::SizeIs(2));
    std::vector<const std::vector<std::optional<float>>*> columns;
    const auto take = [&](const Attempt& each) {
        for (const Series& series : each.debrief.series)
            columns.push_back(&series.values);
    };
    take(*form.debrief.attempt());
    for (const Attempt& each : form.debrief.compared())
        take(each);
    const auto parts = [](const std::string& text, char mark) {
        std::vector<std::string> all(1);
        for (const char letter : text)
            if (letter == mark)
                all.emplace_back();
            else
                all.back() += letter;
        return all;
    };
    const auto lines = parts(debriefCsv(form.debrief, form.texts), '\n');
    ASSERT_EQ(lines.size(), lengths.back() + 2) << "headings, samples, the end of the last line";
    EXPECT_EQ(parts(lines[0], ';').size(), 4 + columns.size());
    EXPECT_THAT(lines[0], testing::HasSubstr(";#1 Needle (°)"));
    EXPECT_THAT(lines[4], testing::StartsWith("4;4.0;"));
    int gaps = 0;
    for (std::size_t i = 0; i < lengths.back(); ++i) {
        const auto cells = parts(lines[i + 1], ';');
        ASSERT_EQ(cells.size(), 4 + columns.size());
        EXPECT_NEAR(std::stod(cells[2]), form.debrief.attempt()->samples[i].traceLat, 1e-6);
        for (std::size_t column = 0; column < columns.size(); ++column) {
            const std::string& cell = cells[4 + column];
            const bool there = i < columns[column]->size() && (*columns[column])[i].has_value();
            ASSERT_EQ(cell.empty(), !there) << i << " " << column;
            gaps += there ? 0 : 1;
            if (there) {
                EXPECT_NEAR(std::stod(cell), *(*columns[column])[i], 6e-4);
            }
        }
    }
    EXPECT_GE(gaps, static_cast<int>(lengths[2] - lengths[0])) << "the first attempt was shorter";
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
    form.debriefControls.close.click();
    form.display.setNorthUp(false);
    couple();
    form.debriefControls.item.click();
    EXPECT_EQ(form.debrief.choice().course, 110) << "whichever way the chart lies";
    for (const auto& [choice, judged] :
         {std::pair{TaskChoice{.kind = TaskKind::reference}, false},
          std::pair{TaskChoice{.kind = TaskKind::arc, .station = Slot::ndb1}, false},
          std::pair{TaskChoice{.kind = TaskKind::arc, .station = Slot::vor2}, true},
          std::pair{TaskChoice{.kind = TaskKind::holding, .station = Slot::ndb1}, true}}) {
        form.debrief.choose(choice);
        EXPECT_EQ(form.debriefControls.judge.enabled(), judged)
            << told(choice.kind == TaskKind::arc);
    }
}

} // namespace
} // namespace tarnel
