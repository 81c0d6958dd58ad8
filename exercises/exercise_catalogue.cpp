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
    {1, frame1, "hsi.sty", false, Text::titleHsiPosition, "hsipos", 6, 1, false,
     position<hsiLists>},
    {2, frame1, "stdvor.sty", false, Text::titleStdVorPosition, "stdvor", 1, 1, false,
     position<standardVorLists>},
    {3, frame2, "HSIHLD.sty", false, Text::titleHsiHolding, "hsihld", 6, 6, false, holding<5>},
    {4, frame2, "dgHLD.sty", false, Text::titleDgHolding, "dghld", 6, 6, false, holding<6>},
    {5, frame11, "adfpos.sty", false, Text::titleAdfPosition, "adfpos", 6, 1, false, adf},
    {6, frame20, "qdm.sty", false, Text::titleQdm, "qdm", 6, 6, false, intercept<Bearing::qdm>},
    {7, frame20, "qdr.sty", false, Text::titleQdr, "qdr", 6, 6, false, intercept<Bearing::qdr>},
    {8, frame29, "wind.sty", false, Text::titleWind, "wind", 6, 6, false, wind},
    {9, frame2, "dmearc.sty", false, Text::titleDmeArc, "dmearc", 6, 6, false, dmeArc},
    {10, frame1, "orientation.sty", true, Text::titleOrientation, "hsipos", 6, 1, true,
     position<orientationLists>},
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
