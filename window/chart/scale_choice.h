#pragma once

#include "chart/map_view.h"
#include "shell/form_1.h"

#include <QWidget>

#include <array>
#include <iterator>

class QPushButton;

namespace tarnel {

/// `ScaleChoice`: the chart's scales as one bar, in NM per 500 twips, the present one raised.
class ScaleChoice : public QWidget {
    Q_OBJECT

  public:
    explicit ScaleChoice(Form1& form, QWidget* parent = nullptr);

    /// Shows the present scale; one that is not offered leaves all segments flat.
    void refresh();

  private:
    static constexpr std::size_t count = std::size(MapView::offeredScales);

    QPushButton* addScale(std::size_t index);

    Form1& form;
    std::array<QPushButton*, count> segments{};
    int shown = 0;
};

} // namespace tarnel
