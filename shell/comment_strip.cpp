#include "shell/comment_strip.h"

#include "core/number_text.h"

namespace tarnel {

CommentStrip::CommentStrip(UserControl2& simulation, CommentPanel& controls, BoxDesk& boxDesk)
    : sim(simulation), panel(controls), boxes(boxDesk) {
    panel.startStop.onClick = [this] { startOrStop(); };
    panel.deleteOne.onClick = [this] { sim.deleteComment(); };
    panel.deleteAll.onClick = [this] { sim.deleteAllComments(); };
    panel.previous.onClick = [this] { step(-1); };
    panel.next.onClick = [this] { step(1); };
}

/// A full table is told in a box; the flight goes on, and the text stays in its field.
void CommentStrip::startOrStop() {
    if (sim.comments.selectedCommentIndex != noComment) {
        forgetText();
        sim.stopComment();
    } else if (sim.comments.commentCount >= Comments::count) {
        tellTableFull();
    } else {
        sim.startComment(panel.text.text());
    }
    follow();
}

void CommentStrip::step(int step) {
    const Comments& comments = sim.comments;
    if (comments.commentCount + step >= Comments::count) {
        tellTableFull();
        return;
    }
    sim.stepComment(step);
    follow();
    panel.text.setText(comments.text(comments.commentCount));
}

void CommentStrip::tellTableFull() {
    boxes.show(Text::errorTitle, std::string(boxes.texts[Text::commentTableFull]));
}

void CommentStrip::follow() {
    const Comments& comments = sim.comments;
    const bool marking = comments.selectedCommentIndex != noComment;
    panel.startStop.setCaption(marking ? Text::commentStop : Text::commentStart);
    panel.previous.setEnabled(!marking);
    panel.next.setEnabled(!marking);
    panel.number.setText(numberText(std::int64_t{comments.commentCount} + 1));
}

void CommentStrip::show(const std::string& comment) {
    panel.comment.setVisible(!comment.empty());
    if (!comment.empty())
        panel.comment.setText(comment);
}

bool CommentStrip::markBlinks(bool resting) const {
    return panel.comment.visible() && (resting || panel.mark.visible());
}

} // namespace tarnel
