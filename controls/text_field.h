#pragma once

#include "controls/form_controls.h"

namespace tarnel {

/// A field to type into. A change of the text by code runs the handler at once, as typing does.
class TextField : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onChange;
    [[nodiscard]] const std::string& text() const { return content; }
    void set(const std::string& text) {
        if (change(content, text) && onChange)
            onChange();
    }
    /// The user's typing: the whole text as it now stands.
    void type(const std::string& text) {
        if (enabled() && visible())
            set(text);
    }

  private:
    std::string content;
};

} // namespace tarnel
