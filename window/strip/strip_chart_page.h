#pragma once

#include "window/strip/strip_page.h"

namespace tarnel {

class ScaleChoice;
class ViewSwitch;

/// `StripChartPage`: what is drawn on the chart, and how.
class StripChartPage : public StripPage {
    Q_OBJECT

  public:
    StripChartPage(const StripModel& stripModel, FormBinding& links, QWidget* parent = nullptr);
    void refresh() override;

  private:
    void addView();
    void addScale();

    ViewSwitch* views = nullptr;
    ScaleChoice* scales = nullptr;
};

} // namespace tarnel
