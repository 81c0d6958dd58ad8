#pragma once

#include "window/chart/chart_layer.h"
#include "window/debrief/chart_tracks.h"
#include "window/debrief/debrief_model.h"

#include <QString>

#include <vector>

namespace tarnel {

/// `DebriefLayer`: the task and the flights on the chart: the task in grey with its corridor, the
/// flight with what is outside marked, those before it thin, the finding that is looked at.
class DebriefLayer : public ChartLayer {
  public:
    explicit DebriefLayer(const DebriefModel& debriefModel) : model(debriefModel) {}

    [[nodiscard]] bool isShown() const override;
    [[nodiscard]] std::uint64_t revision() const override { return model.desk.revision(); }
    [[nodiscard]] Box foot(const LayerPlace& place) override;
    void paintLines(QPainter& painter, const LayerPlace& place) override;
    void paintLettering(QPainter& painter, const LayerPlace& place,
                        std::span<const Box> occupied) override;
    void paintFoot(QPainter& painter, const LayerPlace& place) override;

  private:
    enum class Swatch { own, outside, earlier, earlierDashed, task };
    struct Entry {
        Swatch swatch = Swatch::own;
        QString name;
        QRectF box;
    };
    /// What the tracks were laid out for.
    struct Laid {
        std::uint64_t revision = 0;
        double side = 0;
        double rotation = 0;
        SplitPosition middle;
        std::int16_t scale = 0;
        bool operator==(const Laid&) const = default;
    };

    void layOut(const LayerPlace& place);
    void layOutLegend(const LayerPlace& place);
    [[nodiscard]] std::vector<Entry> entries(double side) const;
    void paintCorridors(QPainter& painter, double pixelsPerMile) const;
    void paintTask(QPainter& painter) const;
    void paintSwatch(QPainter& painter, Swatch swatch, QPointF from, QPointF to) const;

    DebriefModel model;
    ChartTracks tracks;
    Laid laid;
    std::vector<Entry> legend;
    Box footBox;
};

} // namespace tarnel
