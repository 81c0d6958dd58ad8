#pragma once

#include "authoring/findings.h"
#include "authoring/situation.h"
#include "authoring/wording.h"
#include "exercises/exercise_catalogue.h"
#include "exercises/study_record.h"
#include "flights/plan_table.h"

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace tarnel {

/// `QuestionKind`: how the questions of an exercise are placed, flown, answered and proved.
class QuestionKind {
  public:
    QuestionKind() = default;
    QuestionKind(const QuestionKind&) = delete;
    QuestionKind& operator=(const QuestionKind&) = delete;
    virtual ~QuestionKind() = default;

    /// Reads what is to be said of a situation beside wind and speed.
    virtual void read(PlanTable& table, const AuthoredChart& chart, Situation& situation) const = 0;
    /// The radios and dials, and where the aircraft starts.
    [[nodiscard]] virtual FlightPlan start(const Situation& situation,
                                           const AuthoredChart& chart) const = 0;
    virtual void solve(Pilot& pilot, const Situation& situation) const = 0;
    /// The record but for the name of its session.
    [[nodiscard]] virtual StudyRecord ask(const FlownSituation& flown, Language language) const = 0;
    /// What is wrong with this kind of question, beside what is wrong with any.
    virtual void check(const FlownSituation& flown, SourceFindings& findings) const = 0;
};

/// An exercise that courses are written for.
struct CourseKind {
    ExerciseType type;
    std::string_view word; ///< in sources, and before the numbers of its sessions
    std::unique_ptr<QuestionKind> (*make)();
};

[[nodiscard]] std::span<const CourseKind> courseKinds();
/// Null for any other word.
[[nodiscard]] const CourseKind* courseKind(std::string_view word);

// What several kinds have in common.

/// Reads "station", one of those on the chart that `fits`.
[[nodiscard]] Slot readStation(PlanTable& table, std::string_view key, const AuthoredChart& chart,
                               bool (*fits)(Slot));
/// Reads "station", one of those that `fits`, and the place by "radial" and "distance" from it.
void readPlace(PlanTable& table, const AuthoredChart& chart, bool (*fits)(Slot),
               Situation& situation);
[[nodiscard]] bool isVor(Slot slot);
[[nodiscard]] bool isNdb(Slot slot);
[[nodiscard]] bool isVorOrNdb(Slot slot);
/// Reads a needed direction, 0 to 360 degrees.
[[nodiscard]] double readDirection(PlanTable& table, std::string_view key);
/// Reads a needed distance, 0.5 to 60 NM.
[[nodiscard]] double readDistance(PlanTable& table, std::string_view key);

/// Reads the needed "turns" of a holding.
[[nodiscard]] Turn readTurns(PlanTable& table);

/// A flight plan that begins a second before `place`.
[[nodiscard]] FlightPlan planFrom(const GeoPosition& place, const Situation& situation,
                                  const AuthoredChart& chart);

/// The same, at the situation's own place.
[[nodiscard]] FlightPlan planAt(const Situation& situation, const AuthoredChart& chart);
/// An RMI on the left and an HSI on the right, both tuned to the situation's VOR with its DME.
void showRmiAndHsi(FlightPlan& plan, const Situation& situation, double course);
/// Tunes the ADF to a beacon.
void tuneAdf(FlightPlan& plan, Slot beacon);

/// Three digits, alike in both languages.
[[nodiscard]] LocalText direction(double degrees);

/// Flies on for the rest of the situation's time and tells at least two things: the first one when
/// the question has been looked at for a while, the last one near the end. Each is worded when its
/// time has come.
void flyStraightOn(Pilot& pilot, const Situation& situation,
                   const std::vector<std::function<LocalText()>>& words);

/// Told where the turn onto a course ends: what keeps the `needle` where it is. `what` names the
/// course: a QDM, a final.
[[nodiscard]] LocalText establishedTold(const Pilot& pilot, const LocalText& what, double course,
                                        Phrase needle);

/// Degrees that count as no movement of a needle, and as one that is seen.
constexpr double steadyNeedle = 0.5;
constexpr double seenNeedle = 2;

// The makers of the kinds.
std::unique_ptr<QuestionKind> makeHsiKind();
std::unique_ptr<QuestionKind> makeVorKind();
std::unique_ptr<QuestionKind> makeHsiHoldingKind();
std::unique_ptr<QuestionKind> makeDgHoldingKind();
std::unique_ptr<QuestionKind> makeAdfKind();
std::unique_ptr<QuestionKind> makeQdmKind();
std::unique_ptr<QuestionKind> makeQdrKind();
std::unique_ptr<QuestionKind> makeWindKind();
std::unique_ptr<QuestionKind> makeArcKind();
std::unique_ptr<QuestionKind> makeOrientationKind();

} // namespace tarnel
