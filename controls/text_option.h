#pragma once

#include "controls/form_controls.h"

namespace tarnel {

/// An option button whose caption the program writes.
class TextOption : public OptionButton {
  public:
    using OptionButton::OptionButton;
    [[nodiscard]] const std::string& text() const { return content; }
    void setText(const std::string& text) { change(content, text); }

  private:
    std::string content;
};

} // namespace tarnel
