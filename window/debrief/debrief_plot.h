#pragma once

#include "window/debrief/debrief_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

class QHBoxLayout;
class QToolButton;

namespace tarnel {

class DarkList;
class PictureStore;
class PlotLegend;
class PlotView;

/// `DebriefPlot`: the module that takes the radios' place while a flight is debriefed: the plot
/// over time, and what plays it.
class DebriefPlot : public QWidget {
    Q_OBJECT

  public:
    DebriefPlot(const DebriefModel& debriefModel, FormBinding& links, PictureStore& pictures,
                const ModelGuard& guard, QWidget* parent = nullptr);

    void refresh();
    /// Of all sizes on the module; below 1 counts as 1.
    void setScale(double scale);
    [[nodiscard]] PlotView& view() { return *plot; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QLayout* makeHead(FormBinding& binding);
    QToolButton* addButton(QHBoxLayout& row, Text name);
    void makeRates(QHBoxLayout& row, FormBinding& binding);
    void showPlay();

    DebriefModel model;
    ModelGuard guard;
    PlotLegend* legend = nullptr;
    QToolButton* play = nullptr;
    DarkList* rates = nullptr;
    PlotView* plot = nullptr;
    std::optional<bool> shownPlaying;
    std::uint64_t shownRevision = 0;
};

} // namespace tarnel
