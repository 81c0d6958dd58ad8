#include "engine/comment_marking.h"

#include <algorithm>

namespace tarnel {

void CommentMarking::show(std::int16_t index) {
    comments.currentCommentIndex = given.tape.recording.at(index).traceComment;
    given.replay.c_CurrentComment.setIfChanged(comments.shownText(comments.currentCommentIndex));
}

void CommentMarking::forget() {
    comments.clear();
    given.tape.recording.markComment(1, Recording::lastSample, noComment);
    hide();
}

void CommentMarking::start(const std::string& text) {
    comments.setText(comments.commentCount, text);
    comments.commentStartSample = given.tape.presentSampleIndex();
    comments.currentCommentIndex = comments.selectedCommentIndex = comments.commentCount;
}

void CommentMarking::stop() {
    if (!marking())
        return;
    comments.commentCount = comments.firstFree();
    if (!given.clocks.stopped()) {
        comments.currentCommentIndex = comments.selectedCommentIndex = noComment;
        return;
    }
    const std::int16_t present = given.tape.presentSampleIndex();
    if (comments.commentStartSample < present)
        layUpTo(present);
    comments.selectedCommentIndex = noComment;
    show(present);
}

void CommentMarking::layUpTo(std::int16_t sample) {
    if (marking())
        given.tape.recording.markComment(comments.commentStartSample, sample,
                                         comments.selectedCommentIndex);
}

void CommentMarking::deletePresent() {
    Recording& recording = given.tape.recording;
    const std::int16_t present = given.tape.presentSampleIndex();
    const std::int16_t comment = recording.at(present).traceComment;
    const auto carriesIt = [&](int i) { return recording.at(i).traceComment == comment; };
    int first = present;
    while (first > 1 && carriesIt(first - 1))
        --first;
    for (int i = first; i <= Recording::lastSample && carriesIt(i); ++i)
        recording.edit(i).traceComment = noComment;
    show(present);
}

void CommentMarking::deleteAll() {
    given.tape.recording.markComment(1, given.chart.c_TraceBufferMax, noComment);
    comments.reuse();
    show(given.tape.presentSampleIndex());
    comments.currentCommentIndex = 0;
}

void CommentMarking::unmarkAll() {
    if (!anyMarks())
        return;
    given.tape.recording.markComment(0, Recording::lastSample, noComment);
    comments.reuse();
    hide();
}

bool CommentMarking::anyMarks() const {
    if (marking())
        return true;
    for (int i = 1; i <= given.chart.c_TraceBufferMax; ++i)
        if (given.tape.recording.at(i).traceComment != noComment)
            return true;
    return false;
}

void CommentMarking::step(int step) {
    const int next = std::max(0, comments.commentCount + step);
    if (step > 0)
        static_cast<void>(comments.text(next));
    comments.commentCount = static_cast<std::int16_t>(next);
}

} // namespace tarnel
