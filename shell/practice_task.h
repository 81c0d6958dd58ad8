#pragma once

#include <string>

namespace tarnel {

/// `PracticeTask`: the task of a practice flight: it stays in sight where no comment takes its
/// place, until the first one has come.
class PracticeTask {
  public:
    /// A practice flight has been loaded, whose task is this.
    void take(const std::string& text) { task = text; }

    /// What is to be read where the flight has `comment`, which may be empty. `hint` follows the
    /// task.
    [[nodiscard]] std::string beside(const std::string& comment, const std::string& hint) {
        if (!comment.empty() && comment != task)
            task.clear();
        if (task.empty())
            return comment;
        return hint.empty() ? task : task + "\n" + hint;
    }

  private:
    std::string task; ///< empty once a comment has come
};

} // namespace tarnel
