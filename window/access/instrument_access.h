#pragma once

#include "window/access/part.h"

namespace tarnel {

class InstrumentView;

/// `InstrumentAccess`: a dial on the panel with its knobs and keys. The dial reads itself out;
/// under a cover nothing of it can be read, and there is nothing to turn.
class InstrumentAccess : public Whole {
  public:
    explicit InstrumentAccess(InstrumentView& instrument);

    [[nodiscard]] QString text(QAccessible::Text kind) const override;

  protected:
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] Part* makePart(int index) const override;

  private:
    InstrumentView& view;
};

} // namespace tarnel
