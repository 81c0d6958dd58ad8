#include "core/run_time_error.h"
#include "exercises/qa_form.h"
#include "fuzz_target.h"
#include "strings/string_table.h"

using namespace tarnel;

namespace {

/// Starts the exercise on `bytes` and goes through what a student can do with its first questions.
void takeExercise(const std::string& bytes, std::int16_t type) {
    FormState state;
    MemorySettingsStore settings;
    QAform form(state, {germanTable(), settings, [&](const std::string&) { return bytes; },
                        [] { return 1U; }});
    form.c_QAtype = type;
    constexpr int questions = 3;
    for (int i = 0; i < questions; ++i) {
        form.activePanel()->solutionButton.click();
        form.activePanel()->nextButton.click();
    }
    form.activePanel()->cancelButton.click();
}

} // namespace

/// The first byte is the exercise's type, the rest its study file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0 || data[0] < 1 || data[0] > 10)
        return 0;
    const std::int16_t type = data[0];
    const std::string bytes = asText(data + 1, size - 1);
    const StudyFile file = readStudyFile(bytes, type);
    require(file.records.size() <= maxStudyRecords);
    std::string written;
    for (const StudyRecord& record : file.records)
        written += writeStudyRecord(record, type);
    const StudyFile again = readStudyFile(written, type);
    require(again.end == StudyEnd::complete);
    require(again.records.size() == file.records.size());
    try {
        takeExercise(bytes, type);
    } catch (const RunTimeError&) {
        // A record may hold numbers that no heading is made of: the shell tells it.
    }
    return 0;
}
