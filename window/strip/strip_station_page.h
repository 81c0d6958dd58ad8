#pragma once

#include "window/strip/strip_page.h"

#include <array>
#include <string>

namespace tarnel {

/// `StripStationPage`: the stations of the chart with their switches.
class StripStationPage : public StripPage {
    Q_OBJECT

  public:
    StripStationPage(const StripModel& stripModel, FormBinding& links, QWidget* parent = nullptr);
    void refresh() override;

  private:
    struct Station {
        QLabel* identifier = nullptr;
        QLabel* frequency = nullptr;
    };

    QWidget* makeStation(std::size_t index);
    QLabel* addLabel(QLayout& column, const char* property);

    std::array<Station, slotCount> stations;
};

} // namespace tarnel
