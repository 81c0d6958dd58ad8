#include "core/comments.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <utility>

namespace tarnel {

const std::string& Comments::text(int index) const {
    if (index < 0 || index >= count)
        throw RunTimeError(Cause::subscriptOutOfRange, "Comments");
    return texts[static_cast<std::size_t>(index)];
}

void Comments::setText(int index, std::string text_) {
    if (text(index) != text_)
        changeCount.note();
    const_cast<std::string&>(text(index)) = std::move(text_);
    free = std::max(free, static_cast<std::int16_t>(index + 1));
}

void Comments::reuse() {
    free = commentCount = 0;
    currentCommentIndex = selectedCommentIndex = noComment;
}

void Comments::clear() {
    goBackTo(Comments{});
    changeCount.note();
}

void Comments::goBackTo(const Comments& earlier) {
    ChangeCount counted = changeCount;
    counted.goBackTo(earlier.changeCount);
    *this = earlier;
    changeCount = counted;
}

std::string Comments::shownText(std::int16_t index) const {
    return index >= 0 && index < count ? text(index) : std::string();
}

} // namespace tarnel
