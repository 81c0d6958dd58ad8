#pragma once

#include "core/instrument_kind.h"
#include "exercises/exercise.h"
#include "exercises/panel_widgets.h"
#include "exercises/question_draw.h"
#include "exercises/study_file.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// The numbers of `c_QAtype`: the exercise that runs, or why none does.
enum class ExerciseType : std::int16_t {
    closed = -1,
    left = 0, ///< by the student; the trainer has not yet followed
    hsiPosition,
    standardVorPosition,
    hsiHolding,
    dgHolding,
    adfPosition,
    qdm,
    qdr,
    wind,
    dmeArc,
    orientation,
};

/// The numbers of `c_showResult`: what an exercise asks the trainer to do next. The replay is to
/// begin either at once or with its controls armed.
enum class ShowResult : std::int16_t {
    nothing = 0,
    replaySolution = 1,
    nextQuestion = 2,
    studentFlies = 4,
    replayArmed = 6,
};

/// What stands for an exercise outside its questions.
struct ExerciseKind {
    ExerciseType type;
    PanelId panel;
    std::string_view studyFile; ///< the German one; others have "e-" before the name
    StudyFormat format;
    bool studyFileForAll = false; ///< the German file serves where the other is missing
    Text title;
    std::string_view statisticStem;
    int leastQuestions = 1;                          ///< as many as its draw of offers needs
    ShowResult whenSolved = ShowResult::replayArmed; ///< once all is right
    ShowResult onSolution = ShowResult::replayArmed; ///< when the solution is asked for
    bool startsAtRandom = false;
    bool askedOnChart = false;   ///< the chart shows the aircraft, and the instruments are covered
    bool fliesHolding = false;   ///< its flights fly a holding
    bool solvedByRadial = false; ///< the solution is shown with the selected radial
    bool solvedByWind = false;   ///< and with the wind triangle in the place of the track
    std::unique_ptr<Exercise> (*make)(const StringTable& texts, QuestionDraw& draw);
};

/// The exercises, types 1 to 10.
[[nodiscard]] std::span<const ExerciseKind> exerciseCatalogue();

/// The exercise of `type`, or null.
[[nodiscard]] const ExerciseKind* exerciseOf(int type);

/// Whether the exercise asks for a position: the radio faces would tell it.
[[nodiscard]] bool asksForPosition(int type);

/// A menu item: an exercise, and how the panel is set before its first question.
struct ExerciseItem {
    enum class Group { adfAndRmi, hsiAndVor, alone };
    enum class Size { asItIs, small, largeHsi };

    const char* name;
    Text text;
    ExerciseType type;
    Group group;                              ///< the sub menu, if it stands in one
    std::optional<InstrumentKind> inst2 = {}; ///< nothing: as it is
    std::optional<InstrumentKind> inst3 = {};
    Size size = Size::asItIs;
};

/// The exercises of the menu, in its order.
[[nodiscard]] std::span<const ExerciseItem> exerciseItems();

/// The names of its study file, the one to be preferred first.
[[nodiscard]] std::vector<std::string> studyFileNames(const ExerciseKind& exercise, bool german);

} // namespace tarnel
