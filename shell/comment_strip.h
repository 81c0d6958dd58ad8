#pragma once

#include "engine/user_control_2.h"
#include "shell/box_desk.h"
#include "shell/strip_controls.h"

#include <string>

namespace tarnel {

/// `CommentStrip`: shows the comment of the present sample, and lets an author write comments.
class CommentStrip {
  public:
    CommentStrip(UserControl2& simulation, CommentPanel& controls, BoxDesk& boxDesk);

    /// Another flight is in memory: what was being written does not belong to it.
    void forgetText() { panel.text.setText({}); }

    /// Whether the mark beside a comment blinks: at rest, and until it is gone in flight.
    [[nodiscard]] bool markBlinks(bool resting) const;
    /// A timer procedure, twice a second while `markBlinks`.
    void blinkMark(bool resting) { panel.mark.setVisible(resting && !panel.mark.visible()); }

    // Steps of the tick.
    /// Nothing is shown of an empty comment.
    void show(const std::string& comment);
    /// Brings the author's strip to what is being marked, whatever changed it.
    void follow();

  private:
    void startOrStop();
    void step(int step);
    void tellTableFull();

    UserControl2& sim;
    CommentPanel& panel;
    BoxDesk& boxes;
};

} // namespace tarnel
