#pragma once

#include "persistence/line_source.h"
#include "persistence/session_file.h"

namespace tarnel {

// What sessions have in common with those of earlier versions.

/// Takes the comments that the rest of `lines` begins with.
void readComments(LineSource& lines, SessionFile& session);

/// Takes samples up to the end, one at least. `readFields` takes the lines of one but for the line
/// of separation behind it. A sample that is not whole is not kept.
template <class ReadFields>
void readSamples(LineSource& lines, SessionFile& session, ReadFields readFields) {
    do {
        if (session.samples.size() == Recording::lastSample)
            lines.failBeyond(FileField::noFurtherSample);
        Sample sample;
        readFields(sample);
        lines.next(FileField::sampleEnd);
        session.samples.push_back(sample);
    } while (!lines.atEnd());
}

/// Reads with `readAll(lines, session)` until a line is wrong.
template <class ReadAll>
SessionFile readUntilProblem(std::string bytes, ReadAll readAll) {
    SessionFile session;
    LineSource lines(std::move(bytes));
    try {
        readAll(lines, session);
    } catch (const FileProblem& problem) {
        session.problem = problem;
    }
    return session;
}

} // namespace tarnel
