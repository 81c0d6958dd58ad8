#include "exercises/study_file.h"
#include "shell/memory_log.h"
#include "shell/progress.h"
#include "shell/trainer_fixture.h"

#include <algorithm>

namespace tarnel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

/// A log of which the test keeps hold, and which fails while it is told to.
struct TroubledLog : MemoryLog {
    using MemoryLog::add;
    void add(const AnsweredRow& row) override {
        if (trouble)
            throw LogFailure(*trouble, "/there");
        MemoryLog::add(row);
    }
    std::optional<LogTrouble> trouble;
};

class TrainingTest : public TrainerWithFiles {
  protected:
    TrainingTest() {
        fly(40);
        saveAs("flight.ts");
        writeCourse(folder.path + "/default");
        writeCourse(folder.path + "/own/Kurs");
        form->courses.setFolder(folder.path + "/own");
        form->training.useLog([this](TrainingDesk&) {
            ++opened;
            auto made = std::make_unique<TroubledLog>();
            log = made.get();
            return made;
        });
    }
    void writeCourse(const std::string& place) const {
        fs::create_directories(place + "/study");
        fs::create_directories(place + "/sessions");
        fs::copy(folder.path + "/flight.ts", place + "/sessions/q.ts");
        std::ofstream file(place + "/study/e-qdm.sty", std::ios::binary);
        for (int i = 0; i < 8; ++i) {
            StudyRecord record;
            record[StudyColumn::qa] = std::to_string(i) + " NDB";
            record[StudyColumn::ans1] = "10";
            record[StudyColumn::ans2] = "decrease";
            record[StudyColumn::ans3] = "left";
            record[StudyColumn::ans4] = "increase";
            record[StudyColumn::sessionName] = "q.ts";
            file << writeStudyRecord(record, static_cast<int>(ExerciseType::qdm));
        }
    }
    ExercisePanel& panel() { return *form->QAform1.activePanel(); }
    void begin() {
        const auto& items = form->exerciseMenu.exercises;
        (*std::ranges::find(items, "qdm", [](const auto& item) { return item->name(); }))->click();
        couple();
    }
    void turnLeft(bool rightly) { panel().rows[2]->options[rightly ? 0 : 2]->click(); }
    void answerAll() {
        auto& headings = panel().rows[0]->options;
        (*std::ranges::find(headings, 10, [](const auto& offered) {
            return std::atoi(offered->text().c_str());
        }))->click();
        for (const auto& [row, right] : {std::pair{1U, 0U}, std::pair{2U, 0U}, std::pair{3U, 1U}})
            panel().rows[row]->options[right]->click();
    }
    void next() {
        panel().nextButton.click();
        couple();
    }
    void leave() {
        panel().cancelButton.click();
        couple();
    }
    std::vector<AnsweredRow> rows() {
        std::vector<AnsweredRow> all;
        log->eachRow([&](const AnsweredRow& row) { all.push_back(row); });
        return all;
    }
    TroubledLog* log = nullptr;
    int opened = 0;
};

TEST_F(TrainingTest, NotesEachAnswerAndOpensTheLogNoSooner) {
    begin();
    EXPECT_EQ(opened, 0);
    world.seconds += 20;
    turnLeft(true);
    world.seconds += 7;
    panel().rows[1]->options[0]->click();
    leave();
    form->training.practise(ownCourse(folder.path + "/own", "Kurs").statisticPrefix,
                            ExerciseType::qdm);
    couple();
    turnLeft(false);
    ASSERT_EQ(rows().size(), 3U);
    EXPECT_EQ(opened, 1);
    const auto [first, second, own] = std::array{rows()[0], rows()[1], rows()[2]};
    EXPECT_EQ(first.spot, Text::spotQdmTurn);
    EXPECT_TRUE(first.right);
    EXPECT_NEAR(static_cast<double>(first.milliseconds), 21'000, 1000);
    EXPECT_NEAR(static_cast<double>(second.milliseconds), 8'000, 1000);
    EXPECT_EQ(second.asked, first.asked);
    EXPECT_GT(first.when, first.asked);
    EXPECT_EQ(own.courseName, "Kurs");
    EXPECT_EQ(own.question, first.question) << "the same question, by its numbers";
    EXPECT_FALSE(own.right);
}

TEST_F(TrainingTest, PractisesWhatWentWrongInAllOfItOrInOneThing) {
    begin();
    next();
    turnLeft(false); // question 2
    next();
    next();
    turnLeft(true); // question 3: one row of four is not all
    leave();
    EXPECT_EQ(form->training.mistakesOf("", ExerciseType::qdm), 2);
    form->training.practise("", ExerciseType::qdm, Text::spotQdmTurn);
    couple();
    EXPECT_EQ(panel().mistakesBox.value(), 1);
    EXPECT_EQ(panel().place().number, 2);
    form->training.practise("", ExerciseType::qdr);
    EXPECT_EQ(form->QAform1.c_QAtype, static_cast<int>(ExerciseType::qdm)) << "one runs already";
    next();
    EXPECT_EQ(panel().place().number, 3);
    leave();
    form->training.practise("gone/", ExerciseType::qdm);
    EXPECT_FALSE(form->exercise.runs());
    form->training.practise("", ExerciseType::qdm);
    couple();
    EXPECT_EQ(panel().place().number, 2);
}

TEST_F(TrainingTest, PractisesTheMistakesOfOneExerciseAfterTheOther) {
    fs::copy(folder.path + "/default/study/e-qdm.sty", folder.path + "/default/study/e-qdr.sty");
    const std::vector<ExerciseType> all = {ExerciseType::wind, ExerciseType::qdr,
                                           ExerciseType::qdm};
    form->training.practiseAll("", all);
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("Nothing went wrong")));
    for (const ExerciseType type : {ExerciseType::qdm, ExerciseType::qdr}) {
        form->training.practise("", type);
        couple();
        turnLeft(false); // question 1
        leave();
    }
    const int type = form->inst3TypeList.index();
    form->training.practiseAll("", all);
    couple();
    EXPECT_EQ(form->QAform1.c_QAtype, static_cast<int>(ExerciseType::qdr));
    answerAll();
    next();
    couple();
    EXPECT_EQ(form->QAform1.c_QAtype, static_cast<int>(ExerciseType::qdm)) << "the next one";
    EXPECT_EQ(panel().place().number, 1);
    answerAll();
    next();
    couple();
    EXPECT_TRUE(form->exercise.runs());
    EXPECT_EQ(panel().mistakesBox.value(), 0) << "all right";
    leave();
    EXPECT_FALSE(form->exercise.runs());
    EXPECT_EQ(form->inst3TypeList.index(), type);

    form->training.practise("", ExerciseType::qdr);
    couple();
    turnLeft(false);
    leave();
    form->training.practiseAll("", {ExerciseType::qdr, ExerciseType::qdr});
    couple();
    leave();
    EXPECT_FALSE(form->exercise.runs()) << "left before its end";
}

TEST_F(TrainingTest, TellsOnceThatNothingCanBeKeptAndGoesOn) {
    begin();
    turnLeft(true);
    log->trouble = LogTrouble::unwritable;
    for (int row = 0; row < 2; ++row)
        panel().rows[row == 0 ? 1 : 3]->options[0]->click();
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("/there")));
    next();
    log->trouble = {};
    turnLeft(false);
    log->trouble = LogTrouble::busy;
    panel().rows[1]->options[0]->click();
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("/there"), HasSubstr("busy")));
    EXPECT_EQ(rows().size(), 2U);
}

TEST_F(TrainingTest, ExportsAndDeletesWhenAsked) {
    begin();
    turnLeft(false);
    world.chosen = folder.path + "/answers.csv";
    form->training.exportAnswers();
    EXPECT_THAT(bytes("answers.csv"), HasSubstr("QDM Exercises"));
    EXPECT_THAT(bytes("answers.csv"), HasSubstr("QDM: the first turn,Right,left,0,"));
    world.answer = false;
    EXPECT_FALSE(form->training.deleteEverything());
    EXPECT_EQ(rows().size(), 1U);
    world.answer = true;
    EXPECT_TRUE(form->training.deleteEverything());
    EXPECT_TRUE(rows().empty());
}

TEST_F(TrainingTest, KeepsFlightsWithinTheLimitsOfTheUser) {
    form->training.setLimits({.most = 2, .mostBytes = std::int64_t{3} << 20});
    EXPECT_EQ(form->training.limits().mostBytes, std::int64_t{3} << 20);
    for (const char* session : {"a", "b", "c"})
        EXPECT_TRUE(form->training.keepFlight({.taskKey = "task", .title = "Holding"}, session));
    EXPECT_EQ(log->flights().size(), 2U);
    form->training.setLimits({.most = 1});
    EXPECT_EQ(log->flights().size(), 1U);
}

/// Answers over three days of an hour each.
class ProgressTest : public testing::Test {
  protected:
    static constexpr std::int64_t hour = 3'600'000;
    void answer(std::int64_t when, ExerciseType exercise, Text spot, bool right,
                std::int64_t milliseconds = 1000, const std::string& course = {}) {
        AnsweredRow row;
        row.when = when;
        row.exercise = exercise;
        row.spot = spot;
        row.right = right;
        row.milliseconds = milliseconds;
        row.courseKey = course;
        log.add(row);
    }
    MemoryLog log;
    const std::vector<std::int64_t> days = {0, hour, 2 * hour, 3 * hour};
};

TEST_F(ProgressTest, CountsByTheSpansAndShowsTheWeakestFirst) {
    using enum ExerciseType;
    for (const std::int64_t took : {9000, 1000, 2000})
        answer(2 * hour, qdm, Text::spotQdmTurn, took > 1000, took);
    answer(3 * hour - 1, qdr, Text::spotQdrTurn, false);
    answer(2 * hour - 1, qdr, Text::spotQdrTurn, true);
    answer(3 * hour, wind, Text::spotCrosswind, true); // after the last span
    answer(-1, dmeArc, Text::spotLeadRadial, true);    // before the first
    const Progress progress = progressOf(log, {}, days);
    EXPECT_EQ(progress.answers, 7);
    EXPECT_EQ(progress.since, -1);
    EXPECT_EQ(progress.all.now().asked, 4);
    EXPECT_EQ(progress.all.now().percent(), 50);
    EXPECT_EQ(progress.all.before().asked, 1);
    EXPECT_EQ(progress.all.history[0].percent(), std::nullopt);
    std::vector<ExerciseType> order;
    for (const ExerciseProgress& each : progress.exercises)
        order.push_back(each.exercise);
    order.resize(4);
    EXPECT_THAT(order, ElementsAre(qdr, qdm, wind, dmeArc)) << "then what was asked last";
    EXPECT_EQ(progress.exercises[1].now().milliseconds, 2000) << "the middle one";
    EXPECT_EQ(progress.exercises[1].now().percent(), 67);
    EXPECT_EQ(progress.exercises[3].lastAsked, -1);
    EXPECT_EQ(progress.exercises[4].lastAsked, std::nullopt);
}

} // namespace
} // namespace tarnel
