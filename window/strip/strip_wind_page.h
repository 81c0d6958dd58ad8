#pragma once

#include "window/strip/strip_page.h"

namespace tarnel {

class WindEntry;

/// `StripWindPage`: where the wind comes from, and what is shown of it.
class StripWindPage : public StripPage {
    Q_OBJECT

  public:
    StripWindPage(const StripModel& stripModel, FormBinding& links, QWidget* parent = nullptr);
    void refresh() override;

  private:
    WindEntry* entry = nullptr;
};

} // namespace tarnel
