#include "shell/question_task.h"
#include "shell/task_choice.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarnel {
namespace {

using enum StudyColumn;

TEST(TaskChoices, AreWhatTheirTasksWouldBePutTogetherBy) {
    for (const Slot station : {Slot::vor1, Slot::vor2, Slot::ndb1, Slot::ndb2, Slot::localizer})
        for (const bool flag : {false, true}) {
            TaskChoice line{.station = station, .course = flag ? 1 : 360, .joins = flag};
            EXPECT_EQ(choiceOf(*taskOf(line, {})), line);
            line.kind = TaskKind::trackFrom;
            EXPECT_EQ(choiceOf(*taskOf(line, {})), line);
            const TaskChoice hold{.kind = TaskKind::holding,
                                  .station = station,
                                  .course = 240,
                                  .side = flag ? HoldingSide::right : HoldingSide::left,
                                  .minutes = 1.5};
            EXPECT_EQ(choiceOf(*taskOf(hold, {})), hold);
            const TaskChoice arc{.kind = TaskKind::arc,
                                 .station = station,
                                 .distance = 2.5,
                                 .clockwise = flag,
                                 .finalToStation = !flag};
            const std::optional<Task> task = taskOf(arc, {});
            EXPECT_EQ(task.has_value(), hasDme(station));
            EXPECT_EQ(task ? choiceOf(*task) : arc, arc);
        }
    const std::vector<Sample> flight(3);
    EXPECT_FALSE(taskOf({.kind = TaskKind::reference}, {}));
    EXPECT_EQ(taskOf({.kind = TaskKind::reference}, flight), Task(ReferenceTask{flight}));
    EXPECT_EQ(choiceOf(ReferenceTask{flight}), TaskChoice{.kind = TaskKind::reference});
    const HoldTask holding{Slot::ndb2, 10, HoldingSide::left, 2};
    EXPECT_EQ(choiceOf(WindTask{holding}), choiceOf(holding));
}

TEST(TaskChoices, OfferWholeCoursesFrom1To360) {
    const std::pair<double, int> courses[] = {{0, 360},     {0.4, 360},   {0.5, 1},   {1.4, 1},
                                              {359.4, 359}, {359.5, 360}, {360, 360}, {-0.4, 360},
                                              {-90, 270},   {720.2, 360}, {-361, 359}};
    for (const auto& [degrees, whole] : courses) {
        EXPECT_EQ(choiceOf(LineTask{.course = degrees}).course, whole) << degrees;
        EXPECT_EQ(choiceOf(HoldTask{.inbound = degrees}).course, whole) << degrees;
        EXPECT_EQ(choiceOf(ArcTask{.final = degrees}).course, whole) << degrees;
    }
}

/// A flight that ends 30 NM south of VOR 1, and comes near NDB 1 on its way there.
class QuestionTasks : public testing::Test {
  protected:
    QuestionTasks() {
        const GeoPosition stations[] = {{46, 11}, {48, 14}, {44.9, 11.1}, {43, 8}, {50, 5}};
        for (int i = 0; i <= 60; ++i) {
            Sample& sample = flight.emplace_back();
            sample.traceLat = 44.5 + i / 60.0;
            sample.traceLon = 11;
            std::copy(std::begin(stations), std::end(stations), sample.traceStations.begin());
        }
    }
    [[nodiscard]] std::optional<Task> task(ExerciseType type, const StudyRecord& record) const {
        return taskOf(type, record, flight);
    }
    std::vector<Sample> flight;
};

TEST_F(QuestionTasks, AreToBeFlownAfterTheReferenceWhereColumnsTellNothing) {
    const Sample lost; // with all stations below it
    const std::vector<Sample> nowhere(5, lost);
    for (const char* odd : {"", "words", "-", "°", "\xFF\xFE", ".", "Inbound, turns right",
                            "MUN radial inbound. DME arc NM clockwise, final."}) {
        StudyRecord record;
        record.columns.fill(odd);
        for (const ExerciseKind& exercise : exerciseCatalogue()) {
            EXPECT_EQ(task(exercise.type, record), Task(ReferenceTask{flight}))
                << static_cast<int>(exercise.type) << " " << odd;
            EXPECT_EQ(taskOf(exercise.type, record, nowhere), Task(ReferenceTask{nowhere}));
            EXPECT_EQ(taskOf(exercise.type, record, {}), std::nullopt);
        }
    }
}

TEST_F(QuestionTasks, AreTakenFromTheColumnsWhereTheseAndTheFlightAgree) {
    StudyRecord record;
    record[qa] = "358 VOR MUN";
    LineTask line{.station = Slot::vor1, .course = 358, .inbound = true, .joins = true};
    EXPECT_EQ(task(ExerciseType::qdm, record), Task(line));
    record[ans6] = "028";
    line.cut = 30;
    EXPECT_EQ(task(ExerciseType::qdm, record), Task(line));
    for (const char* none : {"words", "358", ""}) { // no heading, or that of the line itself
        record[ans6] = none;
        line.cut.reset();
        EXPECT_EQ(task(ExerciseType::qdm, record), Task(line)) << none;
    }
    EXPECT_EQ(task(ExerciseType::qdr, record), Task(ReferenceTask{flight})) << "it is the QDR 178";
    record[qa] = "360 NDB MNW";
    EXPECT_EQ(task(ExerciseType::qdm, record), Task(ReferenceTask{flight})) << "no NDB is there";

    record = {};
    record[ans2] = "150";
    HoldTask hold{Slot::ndb1, 150, HoldingSide::left, 1};
    EXPECT_EQ(task(ExerciseType::dgHolding, record), Task(hold));
    record[ans3] = "Standard";
    hold.side = HoldingSide::right;
    EXPECT_EQ(task(ExerciseType::hsiHolding, record), Task(hold));
    for (const char* words : {"Inbound 150, turns right", "Inbound 150, rechts herum"}) {
        record[qc] = words;
        EXPECT_EQ(task(ExerciseType::wind, record), Task(WindTask{hold})) << words;
    }
    record[qc] = "Inbound 150, left or right";
    EXPECT_EQ(task(ExerciseType::wind, record), Task(ReferenceTask{flight}));
}

} // namespace
} // namespace tarnel
