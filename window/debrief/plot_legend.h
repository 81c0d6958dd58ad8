#pragma once

#include "window/debrief/debrief_model.h"

#include <QWidget>

namespace tarnel {

/// `PlotLegend`: says what the lines of the plot are; shows as many entries as have room.
class PlotLegend : public QWidget {
    Q_OBJECT

  public:
    PlotLegend(const DebriefModel& debriefModel, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    DebriefModel model;
};

} // namespace tarnel
