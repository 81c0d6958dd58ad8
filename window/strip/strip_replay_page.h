#pragma once

#include "window/strip/strip_page.h"

class QBoxLayout;

namespace tarnel {

enum class Sign;

/// `StripReplayPage`: goes through the recorded flight.
class StripReplayPage : public StripPage {
    Q_OBJECT

  public:
    StripReplayPage(const StripModel& stripModel, FormBinding& links, QWidget* parent = nullptr);
    void refresh() override;

  private:
    template <class Control>
    void addSign(QBoxLayout& row, Control& control, Sign sign);
    QWidget* makeTimeline();

    QWidget* timeline = nullptr; ///< the bar with its clock, which rest with the replay
};

} // namespace tarnel
