#pragma once

#include "engine/user_control_2.h"
#include "shell/box_desk.h"
#include "shell/strip_controls.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// `CommentStrip`: shows the comment of the present sample, and lets an author write comments.
class CommentStrip {
  public:
    CommentStrip(UserControl2& simulation, CommentPanel& controls, BoxDesk& boxDesk);

    /// Another flight is in memory: what was being written does not belong to it.
    void forgetText() { panel.text.setText({}); }

    // Steps of the tick.
    /// Nothing is shown of an empty comment.
    void show(const std::string& comment);
    /// The mark beside the comment blinks at rest.
    void blinkMark(bool resting);
    /// Brings the author's strip to what is being marked, whatever changed it.
    void follow();

  private:
    void startOrStop();
    void step(int step);
    void tellTableFull();

    UserControl2& sim;
    CommentPanel& panel;
    BoxDesk& boxes;
    bool markShown = true;
    std::int16_t blinkCounter = 0;
};

} // namespace tarnel
