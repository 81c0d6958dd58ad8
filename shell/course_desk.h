#pragma once

#include "shell/box_desk.h"
#include "shell/exercise_conduct.h"

#include <string>
#include <vector>

namespace tarnel {

/// `CourseDesk`: the courses that the user has put into a folder, each below its name. Their
/// exercises run as the shipped ones do.
class CourseDesk {
  public:
    CourseDesk(BoxDesk& boxDesk, ExerciseConduct& conduct, const CommandButton& menuItem)
        : boxes(boxDesk), exercise(conduct), menu(menuItem) {}

    /// The courses lie below `path` from now on; without a folder there are none.
    void setFolder(const std::string& path) { folder = path; }
    [[nodiscard]] const std::string& place() const { return folder; }

    /// The names of the courses, in no order. What begins with a dot is hidden.
    [[nodiscard]] std::vector<std::string> names() const;
    /// The exercises that a course has a study file for, in the order of the menu.
    [[nodiscard]] std::vector<const ExerciseItem*> exercisesOf(const std::string& name) const;
    /// Starts an exercise of a course. A wrong file is told in a box, and nothing has changed then.
    /// Does nothing while the menu rests.
    void open(const std::string& name, const ExerciseItem& item,
              QAform::Order order = QAform::Order::usual);

  private:
    BoxDesk& boxes;
    ExerciseConduct& exercise;
    const CommandButton& menu;
    std::string folder;
};

} // namespace tarnel
