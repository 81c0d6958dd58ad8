#pragma once

#include "core/stations.h"
#include "exercises/study_file.h"
#include "flights/flight_csv.h"
#include "flights/flight_plan.h"
#include "strings/string_table.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tarnel {

/// A language of the study files: how its files are named and the words that answers are judged by.
struct StudyLanguage {
    std::string prefix;       ///< of a file's name
    const StringTable& texts; ///< of the lists that answers are picked from
    std::string left, right;
    std::string grows, shrinks, stays; ///< the angle of an intercept, where German has "ss"
};

/// German, then English.
[[nodiscard]] const std::vector<StudyLanguage>& studyLanguages();

/// The shipped questions of an exercise. Expects that the file has no line but theirs, each with a
/// tag of its own and ended by CR LF.
[[nodiscard]] std::vector<StudyRecord> writtenQuestions(const StudyLanguage& language, int type);

/// The first turn of a flight.
struct FirstTurn {
    std::string side = "maintain"; ///< or "left", "right"
    std::size_t tick = 0;          ///< its first; if there is none, the last of the flight
    double heading = 0;            ///< where it ends
};

/// The flight behind a question, flown to its end.
struct FlownQuestion {
    FlightPlan plan;
    std::vector<FlightRow> rows; ///< one a tick, from tick 0
    std::array<std::string, slotCount> identifiers;
    std::size_t boxes = 0; ///< messages that came up

    /// At the first sample, where the question stands.
    [[nodiscard]] const FlightRow& asked() const { return rows.at(firstSampleTick); }
    [[nodiscard]] Slot navStation() const { return static_cast<Slot>(plan.start.nav1.value()); }
    [[nodiscard]] Slot adfStation() const { return *plan.start.adf == 0 ? Slot::ndb1 : Slot::ndb2; }
    [[nodiscard]] const std::string& identifier(Slot slot) const {
        return inSlot(identifiers, slot);
    }
    [[nodiscard]] FirstTurn firstTurn() const;

    static constexpr std::size_t firstSampleTick = 3;
};

/// Flies the plan of a session; once, if asked again.
[[nodiscard]] const FlownQuestion& flownQuestion(const std::string& session);

/// Degrees, the aircraft from the station. `slot` is not the localizer.
[[nodiscard]] double radialAt(const FlightRow& row, Slot slot);
/// 0 to below 360.
[[nodiscard]] double circle(double degrees);
/// From `from` to `to` the shorter way, -180 to 180; positive clockwise.
[[nodiscard]] double turnBetween(double from, double to);
/// Expects a direction written with three digits, 000 to 360, within a degree of `degrees`.
void expectDirection(const std::string& written, double degrees);

/// Calls `check` for each question of an exercise in both languages, with its flight.
void forEachQuestion(int type, const std::function<void(const StudyLanguage&, const StudyRecord&,
                                                        const FlownQuestion&)>& check);

} // namespace tarnel
