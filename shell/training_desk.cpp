#include "shell/training_desk.h"

#include "shell/answers_csv.h"
#include "shell/asked_file.h"
#include "shell/text_format.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <tuple>
#include <utility>

namespace tarnel {

namespace {

constexpr const char* settingsSection = "log";
constexpr const char* mostKey = "mostFlights";
constexpr const char* megabytesKey = "mostMegabytes";
constexpr std::int64_t megabyte = std::int64_t{1} << 20;

Text sentenceOf(LogTrouble trouble) {
    switch (trouble) {
    case LogTrouble::ofNewerVersion:
        return Text::logOfNewerVersion;
    case LogTrouble::busy:
        return Text::logBusy;
    default:
        return Text::logUnwritable;
    }
}

const ExerciseItem* itemOf(ExerciseType type) {
    const auto items = exerciseItems();
    const auto found = std::ranges::find(items, type, &ExerciseItem::type);
    return found == items.end() ? nullptr : &*found;
}

} // namespace

TrainingDesk::TrainingDesk(QAform& exercises, ExerciseConduct& conduct, CourseDesk& courseDesk,
                           BoxDesk& boxDesk, OutsideWorld& world)
    : form(exercises), exercise(conduct), courses(courseDesk), boxes(boxDesk), outside(world) {
    form.onPosed = [this] { asked = answering = now(); };
    form.onJudged = [this](const JudgedRow& row) { note(row); };
    form.mistakes = [this](const Course& course, ExerciseType type,
                           const std::vector<std::int64_t>& questions) {
        return roundOf(course, type, questions);
    };
    form.onRoundOver = [this] { roundEnds(); };
    exercise.onLeave = [this] { goOn(); };
}

bool TrainingDesk::with(const std::function<void(TrainingLog&)>& work) {
    if (!open)
        return false;
    if (!log)
        log = open(*this);
    try {
        work(*log);
        told.reset();
        return true;
    } catch (const LogFailure& failure) {
        tell(failure);
        return false;
    }
}

void TrainingDesk::tell(const LogFailure& failure) {
    if (told == failure.trouble())
        return;
    told = failure.trouble();
    boxes.show(Text::errorTitle,
               filledIn(boxes.texts[sentenceOf(failure.trouble())], {failure.what()}));
}

void TrainingDesk::tellSetAside(const std::string& path) {
    boxes.show(Text::errorTitle, filledIn(boxes.texts[Text::logSetAside], {path}));
}

void TrainingDesk::note(const JudgedRow& judged) {
    const std::int64_t moment = now();
    AnsweredRow row;
    row.when = moment;
    row.asked = asked;
    row.exercise = judged.exercise;
    row.question = judged.question;
    row.row = judged.row;
    row.spot = judged.spot;
    row.right = judged.right;
    row.milliseconds = std::max<std::int64_t>(0, moment - answering);
    row.courseKey = judged.course.statisticPrefix;
    row.courseName = judged.course.name;
    row.rows = judged.rows;
    row.given = judged.given;
    row.answer = judged.answer;
    answering = moment;
    with([&](TrainingLog& target) { target.add(row); });
}

std::optional<std::int64_t> TrainingDesk::keepFlight(LoggedFlight flight,
                                                     const std::string& session) {
    flight.when = now();
    std::optional<std::int64_t> id;
    with([&](TrainingLog& target) { id = target.add(flight, session, limits()); });
    return id;
}

FlightLimits TrainingDesk::limits() const {
    FlightLimits set;
    const auto number = [&](const char* key, std::int64_t usual) {
        const std::string text = outside.settings().value("tarnel", settingsSection, key, "");
        std::int64_t value = 0;
        const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), value);
        return failure == std::errc() && value > 0 ? value : usual;
    };
    constexpr std::int64_t manyFlights = 100'000;
    set.most = static_cast<int>(std::min(number(mostKey, set.most), manyFlights));
    set.mostBytes =
        std::min(number(megabytesKey, set.mostBytes / megabyte), manyFlights) * megabyte;
    return set;
}

void TrainingDesk::setLimits(const FlightLimits& limits) {
    SettingsStore& settings = outside.settings();
    settings.setValue("tarnel", settingsSection, mostKey, std::to_string(limits.most));
    settings.setValue("tarnel", settingsSection, megabytesKey,
                      std::to_string(limits.mostBytes / megabyte));
    settings.flush();
    with([&](TrainingLog& target) { target.prune(limits); });
}

void TrainingDesk::practise(const std::string& courseKey, ExerciseType type,
                            std::optional<Text> spot) {
    const ExerciseItem* item = itemOf(type);
    if (!item || exercise.runs())
        return;
    wantedSpot = spot;
    if (courseKey.empty())
        exercise.start(*item, shippedCourse(form.c_MainAppPath), QAform::Order::mistakes);
    else
        for (const std::string& name : courses.names())
            if (ownCourse(courses.place(), name).statisticPrefix == courseKey)
                courses.open(name, *item, QAform::Order::mistakes);
    wantedSpot.reset();
}

void TrainingDesk::practiseAll(const std::string& courseKey,
                               const std::vector<ExerciseType>& exercises) {
    if (exercise.runs())
        return;
    ahead = {courseKey, {}, true};
    for (const ExerciseType type : exercises)
        if (mistakesOf(courseKey, type) > 0)
            ahead.exercises.push_back(type);
    if (ahead.exercises.empty())
        boxes.show(Text::practiseMistakes, std::string(boxes.texts[Text::noMistakesAnywhere]),
                   BoxKind::notice);
    goOn();
}

/// The last exercise stays up and tells that all is done.
void TrainingDesk::roundEnds() {
    if (ahead.exercises.empty() || !form.activePanel())
        return;
    ahead.goesOn = true;
    form.activePanel()->cancelButton.click();
}

/// Who leaves before the end of a round has had enough.
void TrainingDesk::goOn() {
    if (!std::exchange(ahead.goesOn, false) || ahead.exercises.empty())
        return ahead.exercises.clear();
    const ExerciseType next = ahead.exercises.front();
    ahead.exercises.erase(ahead.exercises.begin());
    ahead.runs = true;
    practise(ahead.course, next);
    ahead.runs = false;
}

int TrainingDesk::mistakesOf(const std::string& courseKey, ExerciseType type) {
    int count = 0;
    with([&](TrainingLog& target) {
        count = static_cast<int>(std::ranges::count(target.standings(courseKey, type), false,
                                                    &QuestionStanding::allRight));
    });
    return count;
}

MistakeRound TrainingDesk::roundOf(const Course& course, ExerciseType type,
                                   const std::vector<std::int64_t>& questions) {
    MistakeRound round;
    with([&](TrainingLog& target) {
        round = wantedSpot ? spotRound(target, course, type, questions, *wantedSpot)
                           : MistakeRound(questions, target.standings(course.statisticPrefix, type),
                                          ahead.runs ? 0 : now());
    });
    return round;
}

/// The questions in which the log has seen that spot: what went wrong first, then by their age.
MistakeRound TrainingDesk::spotRound(TrainingLog& target, const Course& course, ExerciseType type,
                                     const std::vector<std::int64_t>& questions, Text spot) {
    using Last = std::tuple<bool, std::int64_t, int>; // right, when it was asked, place
    int number = 0;
    for (const LoggedCourse& known : target.courses())
        if (known.key == course.statisticPrefix)
            number = known.number;
    std::map<std::int64_t, Last> last;
    target.eachAnswer([&](const AnswerFacts& answer) {
        if (answer.course == number && answer.exercise == type && answer.spot == spot)
            last[answer.question] = {answer.right, answer.asked, 0};
    });
    std::vector<Last> found;
    for (std::size_t i = 0; i < questions.size(); ++i)
        if (const auto at = last.find(questions[i]); at != last.end())
            found.emplace_back(std::get<0>(at->second), std::get<1>(at->second),
                               static_cast<int>(i));
    std::ranges::sort(found);
    std::vector<int> places;
    places.reserve(found.size());
    for (const Last& each : found)
        places.push_back(std::get<2>(each));
    return MistakeRound(std::move(places));
}

void TrainingDesk::exportAnswers() {
    writeAskedFile(boxes,
                   {.saves = true,
                    .title = std::string(boxes.texts[Text::exportAnswers]),
                    .present = std::string(boxes.texts[Text::answersFile]),
                    .folder = {},
                    .filter = std::string(boxes.texts[Text::csvFilter]),
                    .extension = "csv"},
                   [this]() -> std::optional<std::string> {
                       std::string bytes;
                       if (!with([&](TrainingLog& target) {
                               bytes = answersCsv(target, boxes.texts, outside);
                           }))
                           return {};
                       return bytes;
                   });
}

bool TrainingDesk::deleteEverything() {
    if (!boxes.confirm(Text::deleteLog, Text::deleteLogQuestion))
        return false;
    return with([](TrainingLog& target) { target.clear(); });
}

} // namespace tarnel
