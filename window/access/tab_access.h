#pragma once

#include "window/access/part.h"

class QTabBar;

namespace tarnel {

/// `TabAccess`: a row of tabs, named by what it holds. Qt's own is named by the tab that is chosen.
class TabAccess : public Whole {
  public:
    explicit TabAccess(QTabBar& bar);

  protected:
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] Part* makePart(int index) const override;

  private:
    QTabBar& tabs;
};

} // namespace tarnel
