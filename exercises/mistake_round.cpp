#include "exercises/mistake_round.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace tarnel {

MistakeRound::MistakeRound(const std::vector<std::int64_t>& questions,
                           const std::vector<QuestionStanding>& standings, std::int64_t now) {
    using Wanted = std::tuple<bool, std::int64_t, int>; // rested, when it was asked, place
    std::unordered_map<std::int64_t, const QuestionStanding*> known;
    for (const QuestionStanding& standing : standings)
        known[standing.question] = &standing;
    std::vector<Wanted> wanted;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const auto found = known.find(questions[i]);
        const std::int64_t asked = found == known.end() ? 0 : found->second->asked;
        const bool wrong = found != known.end() && !found->second->allRight;
        if (wrong || asked < now - longAgo)
            wanted.emplace_back(!wrong, asked, static_cast<int>(i));
    }
    std::ranges::sort(wanted);
    left.reserve(wanted.size());
    for (const Wanted& each : wanted)
        left.push_back(std::get<2>(each));
}

void MistakeRound::pass(bool allRight) {
    constexpr std::size_t between = 3; // enough to forget the answer
    const int passed = left.front();
    left.erase(left.begin());
    if (!allRight)
        left.insert(left.begin() + static_cast<std::ptrdiff_t>(std::min(between, left.size())),
                    passed);
}

} // namespace tarnel
