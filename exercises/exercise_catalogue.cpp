#include "exercises/exercise_catalogue.h"

#include "exercises/adf_exercise.h"
#include "exercises/dme_arc_exercise.h"
#include "exercises/holding_exercise.h"
#include "exercises/intercept_exercise.h"
#include "exercises/position_exercise.h"
#include "exercises/wind_exercise.h"

namespace tarnel {

namespace {

using Made = std::unique_ptr<Exercise>;

// The makers share one signature, whether or not their exercise draws by chance.
template <std::array<AnswerList, 3> (*lists)(const StringTable&)>
Made position(const StringTable& texts, QuestionDraw& /*draw*/) {
    return std::make_unique<PositionExercise>(texts, lists(texts));
}

template <int bound>
Made holding(const StringTable& texts, QuestionDraw& draw) {
    return std::make_unique<HoldingExercise>(texts, draw, bound);
}

template <Bearing bearing>
Made intercept(const StringTable& texts, QuestionDraw& draw) {
    return std::make_unique<InterceptExercise>(texts, draw, bearing);
}

Made adf(const StringTable& texts, QuestionDraw& /*draw*/) {
    return std::make_unique<Exercise>(texts, adfRows());
}

Made wind(const StringTable& texts, QuestionDraw& /*draw*/) {
    return std::make_unique<WindExercise>(texts);
}

Made dmeArc(const StringTable& texts, QuestionDraw& draw) {
    return std::make_unique<DmeArcExercise>(texts, draw);
}

using enum PanelId;

// Orientation counts as HSI position does.
constexpr ExerciseKind catalogue[] = {
    {.type = 1,
     .panel = frame1,
     .studyFile = "hsi.sty",
     .title = Text::titleHsiPosition,
     .statisticStem = "hsipos",
     .solutionCode = 1,
     .make = position<hsiLists>},
    {.type = 2,
     .panel = frame1,
     .studyFile = "stdvor.sty",
     .title = Text::titleStdVorPosition,
     .statisticStem = "stdvor",
     .solvedCode = 1,
     .solutionCode = 1,
     .make = position<standardVorLists>},
    {.type = 3,
     .panel = frame2,
     .studyFile = "HSIHLD.sty",
     .title = Text::titleHsiHolding,
     .statisticStem = "hsihld",
     .fliesHolding = true,
     .make = holding<5>},
    {.type = 4,
     .panel = frame2,
     .studyFile = "dgHLD.sty",
     .title = Text::titleDgHolding,
     .statisticStem = "dghld",
     .fliesHolding = true,
     .make = holding<6>},
    {.type = 5,
     .panel = frame11,
     .studyFile = "adfpos.sty",
     .title = Text::titleAdfPosition,
     .statisticStem = "adfpos",
     .solutionCode = 1,
     .make = adf},
    {.type = 6,
     .panel = frame20,
     .studyFile = "qdm.sty",
     .title = Text::titleQdm,
     .statisticStem = "qdm",
     .make = intercept<Bearing::qdm>},
    {.type = 7,
     .panel = frame20,
     .studyFile = "qdr.sty",
     .title = Text::titleQdr,
     .statisticStem = "qdr",
     .make = intercept<Bearing::qdr>},
    {.type = 8,
     .panel = frame29,
     .studyFile = "wind.sty",
     .title = Text::titleWind,
     .statisticStem = "wind",
     .fliesHolding = true,
     .make = wind},
    {.type = 9,
     .panel = frame2,
     .studyFile = "dmearc.sty",
     .title = Text::titleDmeArc,
     .statisticStem = "dmearc",
     .make = dmeArc},
    {.type = 10,
     .panel = frame1,
     .studyFile = "orientation.sty",
     .studyFileForAll = true,
     .title = Text::titleOrientation,
     .statisticStem = "hsipos",
     .solutionCode = 1,
     .startsAtRandom = true,
     .askedOnChart = true,
     .make = position<orientationLists>},
};

} // namespace

std::span<const ExerciseKind> exerciseCatalogue() {
    return catalogue;
}

const ExerciseKind* exerciseOf(int type) {
    for (const ExerciseKind& exercise : catalogue)
        if (exercise.type == type)
            return &exercise;
    return nullptr;
}

bool asksForPosition(int type) {
    const ExerciseKind* exercise = exerciseOf(type);
    return exercise && (exercise->panel == PanelId::frame1 || exercise->panel == PanelId::frame11);
}

std::vector<std::string> studyFileNames(const ExerciseKind& exercise, bool german) {
    const std::string name(exercise.studyFile);
    if (german)
        return {name};
    if (exercise.studyFileForAll)
        return {"e-" + name, name};
    return {"e-" + name};
}

} // namespace tarnel
