#pragma once

#include "panel/instrument_legend.h"
#include "panel/instrument_positions.h"
#include "shell/box_desk.h"
#include "shell/exercise_conduct.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <vector>

class QHBoxLayout;
class QPainter;
class QToolButton;

namespace tarnel {

/// What belongs to one instrument position, and what its legend asks.
struct HeaderControls {
    const PositionLinks& links;
    OptionButton& smallSize;
    OptionButton& largeSize;
    InstrumentPositions& positions;
    const ExerciseConduct& exercise;
};

/// `InstrumentHeader`: what stands above an instrument: its kind, what it shows on the chart, its
/// size, and the legend of its needles.
class InstrumentHeader : public QWidget {
    Q_OBJECT

  public:
    InstrumentHeader(const HeaderControls& own, BoxDesk& boxDesk, FormBinding& binding,
                     QWidget* parent = nullptr);

    /// Brings the legend up to date.
    void refresh();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QToolButton* addToggle(QHBoxLayout& row);
    void followSize(QToolButton& button);
    [[nodiscard]] bool hasSwatch(std::size_t part) const;
    [[nodiscard]] int partWidth(std::size_t part, bool brief, const QFontMetrics& metrics) const;
    [[nodiscard]] int legendWidth(bool brief, const QFontMetrics& metrics) const;
    void paintPart(QPainter& painter, std::size_t part, bool brief, int left) const;

    HeaderControls controls;
    BoxDesk& boxes;
    std::vector<LegendPart> legend;
    QWidget* overlayPlace = nullptr; ///< has the toggle of the RMI pointer
    QToolButton* toggles = nullptr;  ///< the last of them
};

} // namespace tarnel
