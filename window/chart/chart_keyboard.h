#pragma once

#include "engine/chart_crosshair.h"
#include "engine/user_control_2.h"
#include "paper/paper_frame.h"
#include "strings/string_table.h"

#include <QAction>
#include <QObject>

#include <functional>
#include <initializer_list>
#include <optional>

class QPainter;

namespace tarnel {

class ChartView;

/// `ChartKeyboard`: the chart by keys, for those without a mouse. Each key is an action of the
/// chart; what comes of it is announced, and stands beside the crosshair.
class ChartKeyboard : public QObject {
    Q_OBJECT

  public:
    ChartKeyboard(UserControl2& simulation, const StringTable& texts, ChartView& chart);

    /// Places and turns the aircraft from anywhere in the window; for a menu.
    QAction* place;
    QAction* turn;

    /// Hides the crosshair where it can do nothing, and takes the keyboard to the chart when a wind
    /// is to be drawn.
    void refresh();
    /// Paints the crosshair on a chart of `side` logical pixels.
    void paint(QPainter& painter, double side, double devicePixelRatio) const;
    /// The pointer takes hold of the chart.
    void pointerComes();
    /// The keyboard goes elsewhere in the window.
    void keyboardGoes();
    /// Whether something is held by keys, so that the pointer keeps off.
    [[nodiscard]] bool holds() const { return crosshair.grip() != ChartCrosshair::Grip::none; }
    /// What was said last; it stands on the chart where no crosshair does.
    [[nodiscard]] const QString& words() const { return lastWords; }
    /// The station under the crosshair, while charts are edited.
    [[nodiscard]] std::optional<Slot> stationUnder() const;

  private:
    using Way = ChartCrosshair::Way;
    using Stride = ChartCrosshair::Stride;

    QAction* add(Text name, std::initializer_list<QKeySequence> keys,
                 const std::function<void()>& deed);
    void addDeeds();
    void addSteps();
    void addPlaces();
    void act(const std::function<void()>& deed);
    void step(Way way, Stride stride);
    void press();
    void leave();
    void beginTurn();
    void say(const QString& words);
    void paintCrosshair(QPainter& painter, const PaperFrame& frame) const;
    void paintPlate(QPainter& painter, const QRectF& plate, const QString& text) const;
    void refuse();
    [[nodiscard]] bool mayUse() const;
    [[nodiscard]] QString told() const;
    [[nodiscard]] QString wordsOf(ChartCrosshair::Grip grip) const;
    [[nodiscard]] QString nameOf(Slot station) const;

    UserControl2& sim;
    const StringTable& texts;
    ChartView& view;
    ChartCrosshair crosshair;
    // Both leave their keys to the rest of the window where they would do nothing.
    QAction* pressing = nullptr;
    QAction* leaving = nullptr;
    bool windTool = false; ///< when last looked
    bool refused = false;  ///< the last key could do nothing
    QString lastWords;
};

} // namespace tarnel
