#include "shell/own_courses_fixture.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;

TEST_F(OwnCoursesTest, RunLikeTheShippedOneAndCountByThemselves) {
    const std::string first = "Übung & Co. 1.2", second = std::string(200, 'l') + "\\";
    writeCourse(folder.path + "/default");
    writeCourse(courses + "/" + first, "qdm.sty"); // serves where the English one is missing
    writeCourse(courses + "/" + second);
    open(first);
    const std::string session = courses + "/" + first + "/sessions/q.ts";
    EXPECT_EQ(sim().c_SessionFileName.get(), session);
    const auto samples = sim().c_TraceBufferMax.get();
    ExercisePanel& panel = *form->QAform1.activePanel();
    panel.flyButton.click();
    couple();
    fly(5);
    EXPECT_NE(sim().c_TraceBufferMax, samples);
    form->backButton.click();
    couple();
    EXPECT_EQ(sim().c_SessionFileName.get(), session);
    EXPECT_EQ(sim().c_TraceBufferMax, samples);
    panel.rows[0]->options.back()->click();
    panel.nextButton.click();
    couple();
    EXPECT_EQ(attempts(), "Attempts: 1");
    leave();
    EXPECT_FALSE(form->exercise.runs());
    open(second);
    EXPECT_EQ(attempts(), "Attempts: 0");
    leave();
    form->exerciseMenu.exercises[qdmItem]->click();
    couple();
    EXPECT_EQ(attempts(), "Attempts: 0");
    EXPECT_THAT(sim().c_SessionFileName.get(), testing::HasSubstr("default"));
    leave();
    form->exerciseMenu.resetStatistics.click();
    open(first);
    EXPECT_EQ(attempts(), "Attempts: 0");
    EXPECT_TRUE(world.boxes.empty());
    EXPECT_EQ(world.asked.size(), 1U);
}

TEST_F(OwnCoursesTest, AWrongFileIsToldByItsNameAndChangesNothing) {
    const std::string study = "/study/e-qdm.sty";
    const auto text = [&](const std::string& content) {
        return [=, this](const std::string& place) { write(place + study, content); };
    };
    const auto flight = [&](const std::string& content) {
        return [=, this](const std::string& place) { write(place + "/sessions/q.ts", content); };
    };
    const std::pair<const char*, std::function<void(const std::string& place)>> table[] = {
        {"e-qdm.sty",
         [&](const std::string& place) {
             fs::remove(pathOf(place + study));
             fs::create_directory(pathOf(place + study));
         }},
        {"qdm.sty", [&](const std::string& place) { fs::remove(pathOf(place + study)); }},
        {"no questions", text("")},
        {"fewer than 8 questions", text(questions(7))},
        {"more than 301", text(questions(302))},
        {"ends within", text(questions(9).substr(0, questions(8).size() + 20))},
        {"4000 characters", text(std::string(5000, 'W') + "\n" + questions(8))},
        {"e-qdm.sty", text(std::string(largestStudyFile + 1, '\n'))},
        {"gone.ts", text(questions(8) + questions(1, "gone.ts"))},
        {"sessions/../../../../..", text(questions(8) + questions(1, "../../../../.."))},
        {"q.ts", flight("")},
        {"q.ts", flight(bytes("flight.ts").substr(0, bytes("flight.ts").size() / 2))},
    };
    fly(40);
    for (const auto& [told, spoil] : table)
        expectTold(told, spoil);
    writeCourse(courses + "/right");
    open("right");
    EXPECT_TRUE(form->exercise.runs());
}

} // namespace
} // namespace tarnel
