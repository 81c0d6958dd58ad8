#pragma once

#include <cstdint>
#include <vector>

namespace tarnel {

/// How the question of a log went when it was asked last.
struct QuestionStanding {
    std::int64_t question = 0; ///< its key
    std::int64_t asked = 0;    ///< milliseconds since 1970 UTC
    bool allRight = false;     ///< each of its rows was answered, and right
};

/// `MistakeRound`: asks the questions that went wrong, until each was right once.
class MistakeRound {
  public:
    /// What was not asked for this long is asked again, in milliseconds.
    static constexpr std::int64_t longAgo = std::int64_t{14} * 24 * 3600 * 1000;

    MistakeRound() = default;
    /// Asks of `questions`, keys in the order of the file, those that went wrong the last time, the
    /// one that is longest ago first; then those that were never asked, and those asked long before
    /// `now`.
    MistakeRound(const std::vector<std::int64_t>& questions,
                 const std::vector<QuestionStanding>& standings, std::int64_t now);
    /// Asks the questions at these places of the file, in this order.
    explicit MistakeRound(std::vector<int> places) : left(std::move(places)) {}

    [[nodiscard]] bool over() const { return left.empty(); }
    [[nodiscard]] int count() const { return static_cast<int>(left.size()); }
    /// The place of the question that is up. Not to be asked for when the round is over.
    [[nodiscard]] int place() const { return left.front(); }
    /// The question that is up was right and is done, or comes again when others have been asked.
    void pass(bool allRight);

  private:
    std::vector<int> left;
};

} // namespace tarnel
