#pragma once

#include "controls/form_controls.h"

#include <cstdint>

namespace tarnel {

/// A frame around other controls, with a title that the program writes and a height in twips.
class FormFrame : public TextPanel {
  public:
    using TextPanel::TextPanel;
    [[nodiscard]] std::int16_t height() const { return twips; }
    void setHeight(std::int16_t height) { change(twips, height); }

  private:
    std::int16_t twips = 0;
};

} // namespace tarnel
