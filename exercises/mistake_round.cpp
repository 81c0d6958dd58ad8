#include "exercises/mistake_round.h"

#include <algorithm>
#include <unordered_map>

namespace tarnel {

MistakeRound::MistakeRound(const std::vector<std::int64_t>& questions,
                           const std::vector<QuestionStanding>& standings, std::int64_t now) {
    struct Wanted {
        bool rested; ///< behind those that went wrong
        std::int64_t asked;
        int place;
        auto operator<=>(const Wanted&) const = default;
    };
    std::unordered_map<std::int64_t, const QuestionStanding*> known;
    for (const QuestionStanding& standing : standings)
        known[standing.question] = &standing;
    std::vector<Wanted> wanted;
    for (std::size_t i = 0; i < questions.size(); ++i) {
        const auto found = known.find(questions[i]);
        const std::int64_t asked = found == known.end() ? 0 : found->second->asked;
        const bool wrong = found != known.end() && !found->second->allRight;
        if (wrong || asked < now - longAgo)
            wanted.push_back({!wrong, asked, static_cast<int>(i)});
    }
    std::ranges::sort(wanted);
    for (const Wanted& each : wanted)
        left.push_back(each.place);
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
