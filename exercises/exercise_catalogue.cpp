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

/// With fewer the marks that the order of the questions leaves do not keep the draw to its offers.
constexpr int questionsForOffers = 8;

// Orientation counts as HSI position does.
constexpr ExerciseKind catalogue[] = {
    {.type = ExerciseType::hsiPosition,
     .panel = frame1,
     .studyFile = "hsi.sty",
     .format = StudyFormat::threePrompts,
     .title = Text::titleHsiPosition,
     .statisticStem = "hsipos",
     .onSolution = ShowResult::replaySolution,
     .solvedByRadial = true,
     .make = position<hsiLists>},
    {.type = ExerciseType::standardVorPosition,
     .panel = frame1,
     .studyFile = "stdvor.sty",
     .format = StudyFormat::twoPrompts,
     .title = Text::titleStdVorPosition,
     .statisticStem = "stdvor",
     .whenSolved = ShowResult::replaySolution,
     .onSolution = ShowResult::replaySolution,
     .solvedByRadial = true,
     .make = position<standardVorLists>},
    {.type = ExerciseType::hsiHolding,
     .panel = frame2,
     .studyFile = "HSIHLD.sty",
     .format = StudyFormat::twoPrompts,
     .title = Text::titleHsiHolding,
     .statisticStem = "hsihld",
     .leastQuestions = questionsForOffers,
     .fliesHolding = true,
     .solvedByRadial = true,
     .make = holding<5>},
    {.type = ExerciseType::dgHolding,
     .panel = frame2,
     .studyFile = "dgHLD.sty",
     .format = StudyFormat::twoPrompts,
     .title = Text::titleDgHolding,
     .statisticStem = "dghld",
     .leastQuestions = questionsForOffers,
     .fliesHolding = true,
     .make = holding<6>},
    {.type = ExerciseType::adfPosition,
     .panel = frame11,
     .studyFile = "adfpos.sty",
     .format = StudyFormat::bearings,
     .title = Text::titleAdfPosition,
     .statisticStem = "adfpos",
     .onSolution = ShowResult::replaySolution,
     .make = adf},
    {.type = ExerciseType::qdm,
     .panel = frame20,
     .studyFile = "qdm.sty",
     .format = StudyFormat::intercept,
     .title = Text::titleQdm,
     .statisticStem = "qdm",
     .leastQuestions = questionsForOffers,
     .make = intercept<Bearing::qdm>},
    {.type = ExerciseType::qdr,
     .panel = frame20,
     .studyFile = "qdr.sty",
     .format = StudyFormat::intercept,
     .title = Text::titleQdr,
     .statisticStem = "qdr",
     .leastQuestions = questionsForOffers,
     .make = intercept<Bearing::qdr>},
    {.type = ExerciseType::wind,
     .panel = frame29,
     .studyFile = "wind.sty",
     .format = StudyFormat::wind,
     .title = Text::titleWind,
     .statisticStem = "wind",
     .fliesHolding = true,
     .solvedByWind = true,
     .make = wind},
    {.type = ExerciseType::dmeArc,
     .panel = frame2,
     .studyFile = "dmearc.sty",
     .format = StudyFormat::twoPrompts,
     .title = Text::titleDmeArc,
     .statisticStem = "dmearc",
     .leastQuestions = questionsForOffers,
     .solvedByRadial = true,
     .make = dmeArc},
    {.type = ExerciseType::orientation,
     .panel = frame1,
     .studyFile = "orientation.sty",
     .format = StudyFormat::threePrompts,
     .studyFileForAll = true,
     .title = Text::titleOrientation,
     .statisticStem = "hsipos",
     .onSolution = ShowResult::replaySolution,
     .startsAtRandom = true,
     .askedOnChart = true,
     .solvedByRadial = true,
     .make = position<orientationLists>},
};

using Type = ExerciseType;
using Kind = InstrumentKind;
using Group = ExerciseItem::Group;

constexpr ExerciseItem menu[] = {
    {.name = "adfpos",
     .text = Text::exerciseAdfPosition,
     .type = Type::adfPosition,
     .group = Group::adfAndRmi,
     .inst3 = Kind::vor},
    {.name = "qdm",
     .text = Text::exerciseQdm,
     .type = Type::qdm,
     .group = Group::adfAndRmi,
     .inst3 = Kind::rmi},
    {.name = "qdr",
     .text = Text::exerciseQdr,
     .type = Type::qdr,
     .group = Group::adfAndRmi,
     .inst3 = Kind::rmi},
    {.name = "hsipos2",
     .text = Text::exerciseHsiPosition,
     .type = Type::hsiPosition,
     .group = Group::hsiAndVor,
     .inst2 = Kind::vor,
     .inst3 = Kind::hsi},
    {.name = "mnuAltitude",
     .text = Text::exerciseHsiPositionLarge,
     .type = Type::hsiPosition,
     .group = Group::hsiAndVor,
     .inst3 = Kind::hsi,
     .size = ExerciseItem::Size::largeHsi},
    {.name = "hldhsi",
     .text = Text::exerciseHsiHolding,
     .type = Type::hsiHolding,
     .group = Group::hsiAndVor,
     .inst3 = Kind::hsi},
    {.name = "dmearcs",
     .text = Text::exerciseDmeArcs,
     .type = Type::dmeArc,
     .group = Group::hsiAndVor,
     .inst2 = Kind::rmi},
    {.name = "stdvor",
     .text = Text::exerciseStdVorPosition,
     .type = Type::standardVorPosition,
     .group = Group::hsiAndVor,
     .inst3 = Kind::vor},
    {.name = "wind",
     .text = Text::exerciseWind,
     .type = Type::wind,
     .group = Group::hsiAndVor,
     .inst2 = Kind::rmi},
    {.name = "hlddg",
     .text = Text::exerciseDgHolding,
     .type = Type::dgHolding,
     .group = Group::hsiAndVor,
     .inst3 = Kind::dg},
    {.name = "qdnorient",
     .text = Text::exerciseOrientation,
     .type = Type::orientation,
     .group = Group::alone,
     .inst2 = Kind::vor,
     .inst3 = Kind::hsi,
     .size = ExerciseItem::Size::small},
};

} // namespace

std::span<const ExerciseItem> exerciseItems() {
    return menu;
}

std::span<const ExerciseKind> exerciseCatalogue() {
    return catalogue;
}

const ExerciseKind* exerciseOf(int type) {
    for (const ExerciseKind& exercise : catalogue)
        if (static_cast<int>(exercise.type) == type)
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
