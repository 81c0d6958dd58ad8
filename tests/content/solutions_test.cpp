#include "debrief/debrief.h"
#include "exercises/exercise_catalogue.h"
#include "persistence/file_bytes.h"
#include "persistence/session_file.h"
#include "shell/finding_text.h"
#include "shell/question_task.h"
#include "strings/string_table.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnel {
namespace {

const std::string shipped = TARNEL_APPLICATION_FOLDER "/default/";

std::vector<Sample> flightOf(const StudyRecord& question) {
    constexpr std::size_t largest = 100'000'000;
    return readSession(
               readFileBytes(shipped + "sessions/" + question[StudyColumn::sessionName], largest))
        .samples;
}

/// What is wrong with a flight, a sentence a line.
std::string faultsOf(const std::vector<Sample>& flight, const Task& task) {
    std::string faults;
    for (const Finding& finding : judge(flight, task, Strictness::standard).findings)
        if (finding.verdict == Verdict::wrong)
            faults += "\n  " + findingText(finding, englishTable()) + ": " +
                      verdictText(finding, englishTable()) + " (" +
                      std::to_string(finding.samples.first * 4 / 3) + " s)";
    return faults;
}

/// Who flies a question as its solution does hears nothing but praise.
TEST(Solutions, KeepTheLimitsThatStudentsAreHeldTo) {
    for (const ExerciseKind& exercise : exerciseCatalogue()) {
        const bool ownTask = exercise.panel == PanelId::frame2 ||
                             exercise.panel == PanelId::frame20 ||
                             exercise.panel == PanelId::frame29;
        for (const bool german : {true, false}) {
            const std::string name = studyFileNames(exercise, german).front();
            const StudyFile study = readStudyFile(readFileBytes(shipped + "study/" + name, 1 << 20),
                                                  static_cast<int>(exercise.type));
            ASSERT_FALSE(study.records.empty()) << name;
            for (const StudyRecord& question : study.records) {
                const std::vector<Sample> flight = flightOf(question);
                const auto task = taskOf(exercise.type, question, flight);
                ASSERT_TRUE(task) << name;
                EXPECT_EQ(std::holds_alternative<ReferenceTask>(*task), !ownTask) << name;
                EXPECT_EQ(faultsOf(flight, *task), "")
                    << question[StudyColumn::sessionName] << " " << question[StudyColumn::qa];
            }
        }
    }
}

} // namespace
} // namespace tarnel
