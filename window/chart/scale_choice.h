#pragma once

#include "chart/map_view.h"
#include "shell/box_desk.h"
#include "shell/chart_display.h"

#include <QWidget>

#include <array>
#include <iterator>

class QPushButton;

namespace tarnel {

/// `ScaleChoice`: the chart's scales as one bar, in NM per 500 twips, the present one raised.
class ScaleChoice : public QWidget {
    Q_OBJECT

  public:
    ScaleChoice(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent = nullptr);

    /// Shows the present scale; one that is not offered leaves all segments flat.
    void refresh();

  private:
    static constexpr std::size_t count = std::size(MapView::offeredScales);

    QPushButton* addScale(std::size_t index);

    ChartDisplay& display;
    BoxDesk& boxes;
    std::array<QPushButton*, count> segments{};
    int shown = 0;
};

} // namespace tarnel
