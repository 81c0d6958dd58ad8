#pragma once

#include "engine/user_control_2.h"
#include "paper/chart_lettering.h"
#include "strings/string_table.h"
#include "window/chart/chart_airplane.h"
#include "window/chart/chart_dots.h"
#include "window/chart/chart_frame.h"
#include "window/chart/chart_ground.h"
#include "window/chart/chart_layer.h"
#include "window/chart/chart_lines.h"
#include "window/chart/chart_overlays.h"
#include "window/chart/chart_symbols.h"

#include <QString>

#include <array>
#include <string>

class QPainter;

namespace tarnel {

/// `ChartPainter`: paints all that stands on the chart of a simulation, and keeps what need not be
/// made anew for each painting.
class ChartPainter {
  public:
    ChartPainter(const UserControl2& simulation, const StringTable& texts,
                 ChartMedium medium = ChartMedium::screen);

    /// Paints the chart on a square of `side` logical pixels.
    void paint(QPainter& painter, double side, double devicePixelRatio);

    ChartLayer* layer = nullptr; ///< lies on the chart while it is shown

  private:
    /// The lines of a name label, cut from its caption.
    struct NameText {
        std::string caption;
        QString identifier;
        QString frequency;
        RoomNeeded room;
    };
    /// What the lettering says, besides the names.
    struct Words {
        QString radialI2;
        QString radialI3;
        VectorTexts speeds;
        QString wind;
    };

    void fitFrame(double side, double devicePixelRatio);
    const NameText& nameText(std::size_t slot);
    [[nodiscard]] GridPlace gridPlace() const;
    [[nodiscard]] double rotation() const;
    [[nodiscard]] Words words() const;
    [[nodiscard]] QString courseOf(const RadialLines& lines) const;
    void layOut(const Words& words, const ScaleBar& scale);
    [[nodiscard]] bool layered() const { return layer && layer->isShown(); }
    [[nodiscard]] LayerPlace layerPlace() const;

    void paintLines(QPainter& painter);
    void paintLettering(QPainter& painter, const Words& words);
    void paintNames(QPainter& painter) const;
    void paintName(QPainter& painter, const NameLabel& label, std::size_t slot) const;
    void paintWindLabel(QPainter& painter, const QString& text) const;
    void paintOverlays(QPainter& painter, const ScaleBar& scale) const;

    const UserControl2& sim;
    const StringTable& texts;
    ChartFrame frame;
    ChartSymbols symbols;
    ChartGround ground;
    ChartDots ahead;
    ChartAirplane airplane;
    std::array<NameText, slotCount> nameTexts;
    ChartLettering lettering;
};

} // namespace tarnel
