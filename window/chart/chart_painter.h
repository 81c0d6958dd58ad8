#pragma once

#include "engine/user_control_2.h"
#include "strings/string_table.h"
#include "window/chart/chart_dots.h"
#include "window/chart/chart_frame.h"
#include "window/chart/chart_labels.h"
#include "window/chart/chart_overlays.h"
#include "window/chart/chart_symbols.h"

#include <QString>
#include <QVarLengthArray>

#include <array>
#include <span>
#include <string>

class QPainter;

namespace tarnel {

/// `ChartPainter`: paints all that stands on the chart of a simulation, and keeps what need not be
/// made anew for each painting.
class ChartPainter {
  public:
    ChartPainter(const UserControl2& simulation, const StringTable& texts);

    /// Paints the chart on a square of `side` logical pixels.
    void paint(QPainter& painter, double side, double devicePixelRatio);

  private:
    /// The lines of a name label, cut from its caption.
    struct NameText {
        std::string caption;
        QString identifier;
        QString frequency;
        QSizeF size;
    };

    using Areas = QVarLengthArray<QRectF, 2 * slotCount + 6>;

    void fitFrame(double side, double devicePixelRatio);
    void layOutLabels(const ScaleBar& scale);
    [[nodiscard]] bool isOnPaper(std::size_t slot) const;
    const NameText& nameText(std::size_t slot);
    [[nodiscard]] GridPlace gridPlace() const;
    [[nodiscard]] double rotation() const;

    [[nodiscard]] Areas occupiedAreas(const ScaleBar& scale) const;
    void paintRadialNames(QPainter& painter, std::span<const QRectF> occupied) const;
    void paintNames(QPainter& painter) const;
    void paintName(QPainter& painter, const ChartLabel& label, std::size_t slot) const;
    void paintVectors(QPainter& painter, Areas& occupied) const;
    void paintWindLabel(QPainter& painter, const Areas& occupied);
    [[nodiscard]] QRectF windLabelAt(std::size_t index, QSizeF size) const;
    [[nodiscard]] double costOfWindLabel(const QRectF& place, const Areas& occupied) const;
    void paintOverlays(QPainter& painter, const ScaleBar& scale) const;

    const UserControl2& sim;
    const StringTable& texts;
    ChartFrame frame{1, 1, 1};
    ChartSymbols symbols;
    ChartDots trace;
    ChartDots ahead;
    std::array<NameText, slotCount> nameTexts;

    std::array<ChartLabel, slotCount> labels;
    std::size_t windPlace = 0; ///< where beside the airplane the wind label stood last
};

} // namespace tarnel
