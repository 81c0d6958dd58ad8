#pragma once

#include "controls/form_controls.h"

#include <cstdint>

namespace tarnel {

/// The colours of a text and of the ground behind it, 0xBBGGRR.
struct LabelColours {
    std::uint32_t fore = 0;
    std::uint32_t back = 0xFFFFFF;
    bool operator==(const LabelColours&) const = default;
};

/// A text in colours.
class ColourLabel : public TextPanel {
  public:
    using TextPanel::TextPanel;
    [[nodiscard]] const LabelColours& colours() const { return shown; }
    void setColours(const LabelColours& colours) { change(shown, colours); }

  private:
    LabelColours shown;
};

} // namespace tarnel
