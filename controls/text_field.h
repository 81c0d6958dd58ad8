#pragma once

#include "controls/form_controls.h"

#include <functional>
#include <string>
#include <utility>

namespace tarnel {

/// A field that the user types into. A change by code runs the handler at once, as typing does.
class TextField : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onChange;

    [[nodiscard]] const std::string& text() const { return content; }
    void setText(const std::string& text) {
        if (change(content, text) && onChange)
            onChange();
    }
    /// The user's typing.
    void type(const std::string& text) {
        if (enabled() && visible())
            setText(text);
    }

  private:
    std::string content;
};

} // namespace tarnel
