#pragma once

#include "controls/form_controls.h"

#include <algorithm>
#include <functional>

namespace tarnel {

/// A bar over the numbers 1 to `max()`. Only the user's hand runs the handler.
class ScrollBar : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onScroll;

    [[nodiscard]] int max() const { return highest; }
    [[nodiscard]] int value() const { return position; }

    /// At least 1. A value beyond it comes back to it.
    void setMax(int max) {
        change(highest, std::max(1, max));
        setValue(position);
    }
    /// Moves the bar by code.
    void setValue(int value) { change(position, std::clamp(value, 1, highest)); }
    /// The user's hand.
    void scrollTo(int value) {
        if (!enabled() || !visible())
            return;
        setValue(value);
        if (onScroll)
            onScroll();
    }

  private:
    int highest = 1;
    int position = 1;
};

} // namespace tarnel
