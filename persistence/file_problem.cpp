#include "persistence/file_problem.h"

#include "core/run_time_error.h"

namespace tarnel {

int errorNumber(const FileProblem& problem) {
    if (problem.endOfFile)
        return RunTimeError::inputPastEnd;
    if (problem.expected == FileField::noFurtherComment ||
        problem.expected == FileField::noFurtherSample)
        return RunTimeError::subscriptOutOfRange;
    return RunTimeError::typeMismatch;
}

} // namespace tarnel
