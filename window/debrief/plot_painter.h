#pragma once

#include "strings/string_table.h"
#include "window/debrief/plot_layout.h"

#include <QColor>
#include <QPen>
#include <QString>

class QPainter;

namespace tarnel {

/// The colours of a plot, on the dark panel or on paper.
struct PlotColours {
    QColor well;
    QColor edge;
    QColor grid;
    QColor caption;
    QColor unit;
    QColor own;
    QColor earlier;
    QColor outside;
    QColor dots; ///< on what is outside
    QColor band;
    QColor bandEdge;
    QColor chosen;
    QColor right;
    QColor cursor;
    QColor tag; ///< of the time at the cursor
    QColor tagText;
};
[[nodiscard]] const PlotColours& panelColours();
[[nodiscard]] const PlotColours& paperColours();

/// A plotted value as the read-out shows it: digits with a point, and the unit with the side.
struct PlotReading {
    QString digits; ///< "---" without a value
    QString unit;
};
[[nodiscard]] PlotReading readingOf(const Series& series, std::optional<double> value,
                                    const StringTable& texts);

/// Paints a plot over time. What does not change with the moment is painted by itself.
class PlotPainter {
  public:
    PlotPainter(const PlotLayout& plotLayout, const PlotScene& plotScene, const StringTable& table,
                const PlotColours& plotColours, double textScale)
        : layout(plotLayout),
          scene(plotScene),
          texts(table),
          colours(plotColours),
          scale(textScale) {}

    void paint(QPainter& painter) const;
    void paintCursor(QPainter& painter, int sample, const QString& time) const;

  private:
    void paintPhases(QPainter& painter) const;
    void paintPhase(QPainter& painter, const Phase& phase, const QRectF& cell) const;
    void paintRow(QPainter& painter, const PlotRow& row) const;
    void paintGrid(QPainter& painter, const PlotRow& row) const;
    void paintBands(QPainter& painter, const PlotRow& row) const;
    void paintCurves(QPainter& painter, const PlotRow& row) const;
    void paintCaption(QPainter& painter, const PlotRow& row) const;
    void paintAxis(QPainter& painter) const;

    const PlotLayout& layout;
    const PlotScene& scene;
    const StringTable& texts;
    const PlotColours& colours;
    double scale;
};

/// For the flights before: the later of two is dashed.
[[nodiscard]] QPen earlierPen(const PlotColours& colours, std::size_t index, double scale);

/// A curve outside of limits: a broad line with dots on it, so that it is told from the others
/// without its colour.
void paintOutside(QPainter& painter, const QPolygonF& curve, const QColor& colour,
                  const QColor& dots, double width);

} // namespace tarnel
