#include "shell/progress.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace tarnel {

namespace {

/// Counts the answers of one exercise as they come.
struct Counting {
    std::vector<Tally> history;
    std::vector<std::vector<std::int64_t>> times; ///< by span
    std::optional<std::int64_t> lastAsked;

    explicit Counting(std::size_t spans) : history(spans), times(spans) {}

    void take(const AnswerFacts& answer, std::size_t span) {
        lastAsked = std::max(lastAsked.value_or(answer.when), answer.when);
        if (span >= history.size())
            return;
        ++history[span].asked;
        history[span].right += answer.right ? 1 : 0;
        times[span].push_back(answer.milliseconds);
    }
    ExerciseProgress finish(ExerciseType exercise) {
        for (std::size_t span = 0; span < history.size(); ++span)
            if (auto& all = times[span]; !all.empty()) {
                const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
                std::ranges::nth_element(all, middle);
                const bool isEven = all.size() % 2 == 0;
                const std::int64_t below =
                    isEven ? *std::max_element(all.begin(), middle) : *middle;
                history[span].milliseconds = (below + *middle) / 2;
            }
        return {exercise, std::move(history), lastAsked};
    }
};

/// The latest answers to one kind of row.
class SpotCounting {
  public:
    void take(const AnswerFacts& answer) {
        Answer& place = answers[static_cast<std::size_t>(count++ % SpotProgress::latest)];
        place = {answer.right, answer.exercise};
        if (!answer.right)
            wrongCourse = answer.course;
    }
    [[nodiscard]] SpotProgress finish(Text spot, const std::vector<LoggedCourse>& courses) const {
        SpotProgress told;
        told.spot = spot;
        told.asked = std::min(count, SpotProgress::latest);
        std::vector<std::pair<int, ExerciseType>> wrong; // negative, for the order
        for (int i = 0; i < told.asked; ++i) {
            const Answer& answer = answers[static_cast<std::size_t>(i)];
            told.right += answer.right ? 1 : 0;
            auto found =
                std::ranges::find(wrong, answer.exercise, &std::pair<int, ExerciseType>::second);
            if (found == wrong.end())
                found = wrong.insert(wrong.end(), {0, answer.exercise});
            found->first -= answer.right ? 0 : 1;
        }
        std::ranges::sort(wrong);
        for (const auto& [mistakes, exercise] : wrong)
            told.exercises.push_back(exercise);
        const auto course = std::ranges::find(courses, wrongCourse, &LoggedCourse::number);
        if (course != courses.end())
            told.courseKey = course->key;
        return told;
    }

  private:
    struct Answer {
        bool right = false;
        ExerciseType exercise{};
    };
    std::array<Answer, SpotProgress::latest> answers;
    int count = 0;
    int wrongCourse = 0;
};

/// The weakest first; of equal ones that with more answers. Whether `a` stands before `b`.
bool weaker(int rightA, int askedA, int rightB, int askedB) {
    const int a = rightA * askedB;
    const int b = rightB * askedA;
    return a != b ? a < b : askedA > askedB;
}

bool comesBefore(const ExerciseProgress& a, const ExerciseProgress& b) {
    if ((a.now().asked > 0) != (b.now().asked > 0))
        return a.now().asked > 0;
    if (a.now().asked > 0)
        return weaker(a.now().right, a.now().asked, b.now().right, b.now().asked);
    return a.lastAsked > b.lastAsked; // never is less than ever
}

/// The span of a moment; as many as there are for one outside of all.
std::size_t spanOf(std::int64_t when, std::span<const std::int64_t> bounds) {
    const auto next = std::ranges::upper_bound(bounds, when);
    const std::size_t spans = bounds.size() - 1;
    return next == bounds.begin() || next == bounds.end()
               ? spans
               : static_cast<std::size_t>(next - bounds.begin()) - 1;
}

} // namespace

std::optional<int> Tally::percent() const {
    constexpr int whole = 100;
    if (asked == 0)
        return {};
    return (right * whole + asked / 2) / asked;
}

Progress progressOf(TrainingLog& log, std::optional<int> course,
                    std::span<const std::int64_t> bounds) {
    const std::size_t spans = bounds.size() - 1;
    Counting all(spans);
    std::vector<Counting> counted(exerciseCatalogue().size(), Counting(spans));
    std::unordered_map<Text, SpotCounting> spots;
    Progress progress;
    log.eachAnswer([&](const AnswerFacts& answer) {
        const auto exercise = static_cast<std::size_t>(answer.exercise) - 1;
        if ((course && answer.course != *course) || exercise >= counted.size())
            return;
        ++progress.answers;
        progress.since = std::min(progress.since.value_or(answer.when), answer.when);
        const std::size_t span = spanOf(answer.when, bounds);
        all.take(answer, span);
        counted[exercise].take(answer, span);
        spots[answer.spot].take(answer);
    });
    progress.all = all.finish(ExerciseType::closed);
    for (const ExerciseKind& kind : exerciseCatalogue())
        progress.exercises.push_back(
            counted[static_cast<std::size_t>(kind.type) - 1].finish(kind.type));
    std::ranges::stable_sort(progress.exercises, comesBefore);
    const std::vector<LoggedCourse> courses = log.courses();
    for (const auto& [spot, counting] : spots)
        if (const SpotProgress told = counting.finish(spot, courses);
            told.asked >= SpotProgress::fewest && told.right < told.asked)
            progress.spots.push_back(told);
    std::ranges::sort(progress.spots, [](const SpotProgress& a, const SpotProgress& b) {
        if (a.right * b.asked == b.right * a.asked && a.asked == b.asked)
            return a.spot < b.spot;
        return weaker(a.right, a.asked, b.right, b.asked);
    });
    return progress;
}

std::string exerciseName(ExerciseType exercise, const StringTable& texts) {
    for (const ExerciseItem& item : exerciseItems())
        if (item.type == exercise)
            return std::string(texts[item.text]);
    return {};
}

std::string spotName(Text spot, const StringTable& texts) {
    try {
        return std::string(texts[spot]);
    } catch (const RunTimeError&) {
        return std::string(texts[Text::spotDirection]);
    }
}

} // namespace tarnel
