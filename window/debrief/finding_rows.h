#pragma once

#include "window/debrief/debrief_model.h"

#include <QString>

#include <optional>
#include <vector>

namespace tarnel {

/// A finding as it stands in a list.
struct FindingRow {
    Verdict verdict = Verdict::open;
    QString sentence;
    QString earlier; ///< the first attempt's value; empty without one
    std::optional<Verdict> earlierVerdict;
    QString word;
    QString moment;
};

/// The findings of the flight that is looked at, worst first.
[[nodiscard]] std::vector<FindingRow> findingRows(const DebriefDesk& desk,
                                                  const StringTable& texts);

/// What the task is, such as "Holding at MUN", and what of it is to be kept to.
[[nodiscard]] QString taskTitle(const DebriefModel& model);
[[nodiscard]] QString taskDetail(const DebriefModel& model);
/// "attempt 2".
[[nodiscard]] QString attemptName(const Attempt& attempt, const StringTable& texts);
/// How many findings were right, of how many that can be.
[[nodiscard]] QString scoreOf(const Attempt& attempt, const StringTable& texts);
/// The same of an attempt before, by its name.
[[nodiscard]] QString earlierScoreOf(const Attempt& attempt, const StringTable& texts);
/// The flight's time at a sample, such as "07:40".
[[nodiscard]] QString timeAt(const Attempt& attempt, int sample);
/// The same in seconds.
[[nodiscard]] double secondsAt(const Attempt& attempt, int sample);

} // namespace tarnel
