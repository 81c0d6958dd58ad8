#pragma once

#include <string>

namespace tarnel {

enum class BoxKind { notice, warning };

/// What the trainer needs of the world around it: a window shows boxes, a test writes them down.
class OutsideWorld {
  public:
    virtual ~OutsideWorld() = default;
    /// Shows a box and comes back when the user has closed it.
    virtual void messageBox(BoxKind kind, const std::string& title, const std::string& text) = 0;
};

} // namespace tarnel
