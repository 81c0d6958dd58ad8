#pragma once

#include "controls/form_controls.h"

namespace tarnel {

/// A list of free texts. Going from entry to entry only selects; the handler runs when the user
/// confirms a choice.
class TextList : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onPick;
    [[nodiscard]] const std::vector<std::string>& entries() const { return texts; }
    void setEntries(const std::vector<std::string>& entries) { change(texts, entries); }
    /// -1 before the first selection.
    [[nodiscard]] int index() const { return selected; }
    void select(int index) { change(selected, index); }
    /// The user's choice: a click on the entry, or Enter.
    void pick(int index) {
        if (!enabled() || !visible())
            return;
        select(index);
        if (onPick)
            onPick();
    }

  private:
    std::vector<std::string> texts;
    int selected = -1;
};

} // namespace tarnel
