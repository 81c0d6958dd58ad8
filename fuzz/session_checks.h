#pragma once

#include "fuzz_target.h"
#include "persistence/session_file.h"

namespace tarnel {

/// What was read can be saved, and reads back as it was in both forms.
inline void requireThatItCanBeSaved(const SessionFile& session) {
    constexpr int key = 42;
    require(session.samples.size() <= Recording::lastSample);
    require(session.comments.size() <= Comments::count);
    const std::string saved = writeSession(session, {});
    const SessionFile again = readSession(saved);
    require(again.problem.has_value() == session.samples.empty());
    require(again.samples.size() == session.samples.size());
    require(writeSession(again, {}) == saved);
    require(writeSession(readSession(writeSession(session, key)), {}) == saved);
}

} // namespace tarnel
