#include "exercises/study_file.h"
#include "shell/trainer_fixture.h"

#include <algorithm>
#include <functional>
#include <sys/stat.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

/// A trainer with a saved flight and a folder for courses of QDM intercepts.
class OwnCoursesTest : public TrainerWithFiles {
  protected:
    OwnCoursesTest() {
        fly(40);
        saveAs("flight.ts");
        form->courses.setFolder(courses);
    }
    static std::string questions(int count, const std::string& session = "q.ts") {
        StudyRecord record;
        record[StudyColumn::qa] = "1";
        record[StudyColumn::ans1] = "10";
        record[StudyColumn::sessionName] = session;
        std::string text;
        while (count-- > 0)
            text += writeStudyRecord(record, qdmType);
        return text;
    }
    void write(const std::string& path, const std::string& text) const {
        fs::create_directories(fs::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << text;
    }
    void writeCourse(const std::string& place, const std::string& study = "e-qdm.sty") const {
        write(place + "/study/" + study, questions(8));
        write(place + "/sessions/q.ts", bytes("flight.ts"));
    }
    void open(const std::string& course) {
        form->courses.open(course, qdm);
        couple();
    }
    void leave() {
        form->QAform1.activePanel()->cancelButton.click();
        couple();
    }
    std::string attempts() const {
        const std::string line = form->QAform1.activePanel()->statistic.text();
        return line.substr(0, line.find("  "));
    }

    static constexpr int qdmType = static_cast<int>(ExerciseType::qdm);
    const std::size_t qdmItem = static_cast<std::size_t>(
        std::ranges::find(exerciseItems(), ExerciseType::qdm, &ExerciseItem::type) -
        exerciseItems().begin());
    const ExerciseItem& qdm = exerciseItems()[qdmItem];
    const std::string courses = folder.path + "/own";
};

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
    const auto link = [](const char* file, const char* target) {
        return [=](const std::string& place) {
            fs::remove(place + file);
            fs::create_symlink(target, place + file);
        };
    };
    const struct {
        const char* told;
        std::function<void(const std::string& place)> spoil;
    } table[] = {
        {"e-qdm.sty",
         [&](const std::string& place) {
             fs::remove(place + study);
             ASSERT_EQ(mkfifo((place + study).c_str(), 0600), 0);
         }},
        {"e-qdm.sty",
         [&](const std::string& place) {
             fs::remove(place + study);
             fs::create_directory(place + study);
         }},
        {"qdm.sty", [&](const std::string& place) { fs::remove(place + study); }},
        {"e-qdm.sty", link(study.c_str(), "/dev/zero")},
        {"e-qdm.sty", link(study.c_str(), "nowhere")},
        {"no questions", text("")},
        {"fewer than 8 questions", text(questions(7))},
        {"more than 301", text(questions(302))},
        {"ends within", text(questions(9).substr(0, questions(8).size() + 20))},
        {"4000 characters", text(std::string(5000, 'W') + "\n" + questions(8))},
        {"e-qdm.sty", text(std::string(largestStudyFile + 1, '\n'))},
        {"gone.ts", text(questions(8) + questions(1, "gone.ts"))},
        {"sessions/../../../../..", text(questions(8) + questions(1, "../../../../.."))},
        {"q.ts", link("/sessions/q.ts", "/dev/zero")},
        {"q.ts", flight("")},
        {"q.ts", flight(bytes("flight.ts").substr(0, bytes("flight.ts").size() / 2))},
    };
    fly(40);
    const auto flown = sim().sessionBytes();
    const std::string place = courses + "/wrong";
    for (const auto& [told, spoil] : table) {
        SCOPED_TRACE(told);
        fs::remove_all(courses);
        writeCourse(place);
        spoil(place);
        world.boxes.clear();
        open("wrong");
        ASSERT_EQ(world.boxes.size(), 1U);
        EXPECT_THAT(world.boxes[0],
                    testing::AllOf(testing::HasSubstr(place), testing::HasSubstr(told),
                                   testing::HasSubstr("Nothing was changed.")));
        EXPECT_FALSE(form->exercise.runs());
        EXPECT_EQ(sim().sessionBytes(), flown);
        EXPECT_TRUE(sim().flightUnsaved());
        EXPECT_TRUE(form->exerciseMenu.ownCourses.enabled());
    }
    writeCourse(courses + "/right");
    open("right");
    EXPECT_TRUE(form->exercise.runs());
}

} // namespace
} // namespace tarnel
