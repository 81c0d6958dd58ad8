#pragma once

#include "exercises/exercise_catalogue.h"

#include <string>
#include <vector>

namespace tarnel {

/// `Course`: where the questions and flights of exercises lie, and what their answers are counted
/// under. Folders have the separator at their end.
struct Course {
    std::string studyFolder;
    std::string sessionFolder;
    std::string statisticPrefix; ///< of the exercises' stems
    std::string name = {};       ///< as the user has it; empty for the shipped one
    bool anyLanguage = false;    ///< a study file in the other language serves where one is missing

    /// The names of the study file of `exercise`, the one to be preferred first.
    [[nodiscard]] std::vector<std::string> studyFiles(const ExerciseKind& exercise,
                                                      bool german) const;
    /// What the answers to `exercise` are counted under.
    [[nodiscard]] std::string statisticStem(const ExerciseKind& exercise) const;
};

/// The course that comes with the program, whose folder has "/" or "\\" between its names.
[[nodiscard]] Course shippedCourse(const std::string& applicationFolder);

/// The course `name` of those that the user has in `folder`. Its name, however long, makes a short
/// prefix of its own in the statistics.
[[nodiscard]] Course ownCourse(const std::string& folder, const std::string& name);

/// `folder` with a separator at its end.
[[nodiscard]] std::string withSeparator(std::string folder);

} // namespace tarnel
