#pragma once

#include "window/access/part.h"

namespace tarnel {

class DmeSelector;

/// `DmeAccess`: the switch of a DME: its knob, and its words as the options that they are to a
/// mouse.
class DmeAccess : public Whole {
  public:
    explicit DmeAccess(DmeSelector& selector);

  protected:
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] Part* makePart(int index) const override;

  private:
    DmeSelector& selector;
};

} // namespace tarnel
