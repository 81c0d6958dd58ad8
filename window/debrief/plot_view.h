#pragma once

#include "window/debrief/debrief_model.h"
#include "window/debrief/plot_layout.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/mouse_hold.h"

#include <QPixmap>
#include <QWidget>

#include <cstdint>
#include <optional>

namespace tarnel {

class PictureStore;

/// What is plotted of the flight that is looked at.
[[nodiscard]] PlotScene plotScene(const DebriefDesk& desk);

/// The part of the flight that the chosen finding speaks of; none if that is about all of it.
[[nodiscard]] std::optional<SampleSpan> chosenPart(const DebriefDesk& desk);

/// `PlotView`: the flight over time. Its cursor is the moment of the replay: mouse and keys move
/// both.
class PlotView : public QWidget {
    Q_OBJECT

  public:
    PlotView(const DebriefModel& debriefModel, PictureStore& store, QWidget* parent = nullptr);

    /// Paints again what has changed.
    void refresh();
    void setScale(double scale);
    [[nodiscard]] const PlotLayout& laidOut();

    ModelGuard guard = unguarded();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Shown {
        std::uint64_t revision = 0;
        QSize size;
        double scale = 0;
        double pixelRatio = 0;
        bool operator==(const Shown&) const = default;
    };

    void layOut();
    void paintReadouts(QPainter& painter);
    void paintReadout(QPainter& painter, const PlotRow& row);
    void paintDigits(QPainter& painter, const QString& digits, const QRectF& room);
    void goTo(int sample);
    void speak();

    DebriefModel model;
    PictureStore& pictures;
    PlotScene scene;
    PlotLayout layout;
    QPixmap still; ///< all that does not move with the moment
    Shown shown;
    int shownMoment = -1;
    double scale = 1;
    bool dragging = false;
    MouseHold hold{*this, [this] { dragging = false; }};
};

} // namespace tarnel
