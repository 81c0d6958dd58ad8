#pragma once

#include "core/change_count.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarnel {

/// The comment index of a sample without a comment.
constexpr std::int16_t noComment = -1;

/// The comment texts of a session and where their author stands.
class Comments {
  public:
    static constexpr std::int16_t count = 101;
    static constexpr int longestText = 4000; ///< characters; a file may not hold more

    /// The text of entry `index`, 0 to 100. Throws the subscript error outside.
    [[nodiscard]] const std::string& text(int index) const;
    void setText(int index, std::string text);
    /// The entry behind the last that was written since the table was clear or reused.
    [[nodiscard]] std::int16_t firstFree() const { return free; }
    /// The text that a sample with comment `index` shows: none for `noComment` and for an index
    /// beyond the table.
    [[nodiscard]] std::string shownText(std::int16_t index) const;

    /// Forgets texts and marks.
    void clear();
    /// Takes the marking back to the first entry: all are free again, and keep their texts.
    void reuse();
    /// What it held earlier is there again.
    void goBackTo(const Comments& earlier);
    /// Numbers the texts: see `ChangeCount`.
    [[nodiscard]] std::uint64_t changes() const { return changeCount.value(); }

    std::int16_t commentCount = 0;                 ///< the entry being written: the next free one
    std::int16_t currentCommentIndex = noComment;  ///< the comment of the present sample
    std::int16_t selectedCommentIndex = noComment; ///< the comment that is being marked
    std::int16_t commentStartSample = 0;           ///< where its marking began

  private:
    std::array<std::string, count> texts;
    std::int16_t free = 0;
    ChangeCount changeCount;
};

} // namespace tarnel
