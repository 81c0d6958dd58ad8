#pragma once

#include "shell/training_log.h"
#include "strings/string_table.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarnel {

/// Answers of one span of time.
struct Tally {
    int asked = 0;
    int right = 0;
    std::int64_t milliseconds =
        0; ///< that an answer took: the middle value, or the mean of the two; 0 without answers

    /// Rounded; nothing without answers.
    [[nodiscard]] std::optional<int> percent() const;
};

/// How an exercise went, or all of them.
struct ExerciseProgress {
    ExerciseType exercise{};
    std::vector<Tally> history;            ///< by span, the one shown last
    std::optional<std::int64_t> lastAsked; ///< milliseconds since 1970 UTC; nothing if it never was

    [[nodiscard]] const Tally& now() const { return history.back(); }
    [[nodiscard]] const Tally& before() const { return history[history.size() - 2]; }
};

/// What a student should train: rows of one kind, by their latest answers.
struct SpotProgress {
    /// As many of the latest answers to a kind of row tell how it goes.
    static constexpr int latest = 12;
    /// With fewer answers to a kind of row nothing can be told.
    static constexpr int fewest = 3;

    Text spot{};
    int asked = 0; ///< at most `latest`
    int right = 0;
    std::vector<ExerciseType> exercises; ///< in which it was asked, the one to be trained first
    std::string courseKey;               ///< where the last wrong answer was given
};

/// What the log tells of a course, or of all.
struct Progress {
    ExerciseProgress all;
    std::vector<ExerciseProgress> exercises; ///< weakest first, then those that were not asked
    std::vector<SpotProgress> spots;         ///< with something wrong in them, the weakest first
    int answers = 0;                         ///< of all times
    std::optional<std::int64_t> since;       ///< the first answer
};

/// Adds up the answers of the log, those of the course with that number or all. `bounds` are the
/// ends of two or more spans of time that follow each other, from the start of the first one on.
[[nodiscard]] Progress progressOf(TrainingLog& log, std::optional<int> course,
                                  std::span<const std::int64_t> bounds);

/// An exercise as its menu calls it.
[[nodiscard]] std::string exerciseName(ExerciseType exercise, const StringTable& texts);
/// What a row trains, in words; a log of a newer program may have kinds that this one can't name.
[[nodiscard]] std::string spotName(Text spot, const StringTable& texts);

} // namespace tarnel
