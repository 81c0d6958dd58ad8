#include "engine/user_control_2.h"

#include <algorithm>

namespace tarnel {

void UserControl2::showComment(std::int16_t index) {
    comments.currentCommentIndex = recording.at(index).traceComment;
    c_CurrentComment.setIfChanged(comments.shownText(comments.currentCommentIndex));
}

void UserControl2::forgetComments() {
    comments.clear();
    recording.markComment(1, Recording::lastSample, noComment);
    c_CurrentComment.setIfChanged({});
}

void UserControl2::startComment(const std::string& text) {
    comments.setText(comments.commentCount, text);
    comments.commentStartSample = presentSampleIndex();
    comments.currentCommentIndex = comments.selectedCommentIndex = comments.commentCount;
}

void UserControl2::stopComment() {
    if (comments.selectedCommentIndex == noComment)
        return;
    comments.commentCount = comments.firstFree();
    if (!stopped()) {
        comments.currentCommentIndex = comments.selectedCommentIndex = noComment;
        return;
    }
    const std::int16_t present = presentSampleIndex();
    if (comments.commentStartSample < present)
        recording.markComment(comments.commentStartSample, present, comments.selectedCommentIndex);
    comments.selectedCommentIndex = noComment;
    showComment(present);
}

void UserControl2::deleteComment() {
    const std::int16_t present = presentSampleIndex();
    const std::int16_t comment = recording.at(present).traceComment;
    const auto carriesIt = [&](int i) { return recording.at(i).traceComment == comment; };
    int first = present;
    while (first > 1 && carriesIt(first - 1))
        --first;
    for (int i = first; i <= Recording::lastSample && carriesIt(i); ++i)
        recording.edit(i).traceComment = noComment;
    showComment(present);
}

void UserControl2::deleteAllComments() {
    recording.markComment(1, c_TraceBufferMax, noComment);
    comments.reuse();
    showComment(presentSampleIndex());
    comments.currentCommentIndex = 0;
}

bool UserControl2::hasCommentMarks() const {
    if (comments.selectedCommentIndex != noComment)
        return true;
    for (int i = 1; i <= c_TraceBufferMax; ++i)
        if (recording.at(i).traceComment != noComment)
            return true;
    return false;
}

void UserControl2::stepComment(int step) {
    const int next = std::max(0, comments.commentCount + step);
    if (step > 0)
        static_cast<void>(comments.text(next));
    comments.commentCount = static_cast<std::int16_t>(next);
}

} // namespace tarnel
