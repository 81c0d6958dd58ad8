#pragma once

#include "exercises/study_file.h"
#include "shell/trainer_fixture.h"

#include <algorithm>
#include <functional>

namespace tarnel {

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
        std::filesystem::create_directories(pathOf(path).parent_path());
        std::ofstream(pathOf(path), std::ios::binary) << text;
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
    /// What is told of a course that `spoil` has spoiled, and that it changes nothing.
    void expectTold(const std::string& told,
                    const std::function<void(const std::string& place)>& spoil) {
        const std::string place = courses + "/wrong";
        const auto flown = sim().sessionBytes();
        SCOPED_TRACE(told);
        std::filesystem::remove_all(pathOf(courses));
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

} // namespace tarnel
