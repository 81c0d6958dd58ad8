#include "persistence/file_problem.h"

namespace tarnel {

RunTimeError toRunTimeError(const FileProblem& problem) {
    constexpr auto source = "Tarnel";
    if (problem.endOfFile)
        return {RunTimeError::inputPastEnd, source, "Input past end of file"};
    if (problem.expected == FileField::noFurtherComment ||
        problem.expected == FileField::noFurtherSample)
        return {RunTimeError::subscriptOutOfRange, source, "Subscript out of range"};
    return {RunTimeError::typeMismatch, source, "Type mismatch"};
}

} // namespace tarnel
