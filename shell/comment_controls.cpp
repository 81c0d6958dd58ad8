#include "core/number_text.h"
#include "shell/form_1.h"
#include "shell/text_format.h"

namespace tarnel {

namespace {

/// Ticks between two changes of the mark that blinks at rest: half a second in a window.
constexpr std::int16_t ticksPerBlink = 500;

} // namespace

void Form1::connectComments() {
    commentPanel.startStop.onClick = [this] { startOrStopComment(); };
    commentPanel.deleteOne.onClick = [this] { UserControl11.deleteComment(); };
    commentPanel.deleteAll.onClick = [this] { UserControl11.deleteAllComments(); };
    commentPanel.previous.onClick = [this] { stepComment(-1); };
    commentPanel.next.onClick = [this] { stepComment(1); };
    UserControl11.clockSeed = [this] { return outside.clockSeed(); };
    UserControl11.placedByHand = [this] { StopReplay(); };
    UserControl11.practicePanelSet = [this](std::int16_t panel) { showPracticePanel(panel); };
}

/// A full table is told in a box; the flight goes on, and the text stays in its field.
void Form1::startOrStopComment() {
    if (UserControl11.comments.selectedCommentIndex != noComment) {
        commentPanel.text.setText({});
        UserControl11.stopComment();
    } else if (UserControl11.comments.commentCount >= Comments::count) {
        showBox(text(Text::errorTitle), text(Text::commentTableFull));
    } else {
        UserControl11.startComment(commentPanel.text.text());
    }
    followCommentStrip();
}

void Form1::stepComment(int step) {
    const Comments& comments = UserControl11.comments;
    if (comments.commentCount + step >= Comments::count) {
        showBox(text(Text::errorTitle), text(Text::commentTableFull));
        return;
    }
    UserControl11.stepComment(step);
    followCommentStrip();
    commentPanel.text.setText(comments.text(comments.commentCount));
}

/// Brings the author's strip to what is being marked, whatever changed it.
void Form1::followCommentStrip() {
    const Comments& comments = UserControl11.comments;
    const bool marking = comments.selectedCommentIndex != noComment;
    commentPanel.startStop.setCaption(marking ? Text::commentStop : Text::commentStart);
    commentPanel.previous.setEnabled(!marking);
    commentPanel.next.setEnabled(!marking);
    commentPanel.number.setText(numberText(std::int64_t{comments.commentCount} + 1));
}

void Form1::showComment() {
    std::string comment = questionOpen() ? std::string() : UserControl11.c_CurrentComment;
    if (practising)
        comment = practiceTask.beside(comment, practiceHint());
    commentPanel.comment.setVisible(!comment.empty());
    if (!comment.empty())
        commentPanel.comment.setText(comment);
}

/// How a practice flight is begun; nothing once it is.
std::string Form1::practiceHint() const {
    if (simStopped == 0 || replayOn != 0)
        return {};
    return filledIn(texts[Text::practiceStart], {texts[Text::startSim], texts[Text::replayPlay]});
}

void Form1::blinkCommentMark() {
    if (++blinkCounter <= ticksPerBlink)
        return;
    blinkCounter = 0;
    if (simStopped == 1)
        commentPanel.mark.setVisible(!commentPanel.mark.visible());
}

/// The states of the panel that keeps a practice flight: hidden, nothing kept yet, kept, called
/// back.
void Form1::showPracticePanel(std::int16_t panel) {
    practicePanel.frame.setVisible(panel != 0);
    practicePanel.recall.setEnabled(panel >= 2);
    if (panel == 1 || panel == 2)
        practicePanel.keep.show();
    else if (panel == 3)
        practicePanel.recall.show();
}

} // namespace tarnel
