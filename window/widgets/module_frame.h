#pragma once

#include "window/widgets/kept_painting.h"
#include "window/widgets/model_guard.h"

#include <QRectF>
#include <QWidget>

#include <vector>

namespace tarnel {

class DigitDisplay;
class KnobWidget;

/// `ModuleFrame`: the plate of a module with its caption and units; its heirs place their parts on
/// it.
class ModuleFrame : public QWidget {
    Q_OBJECT

  public:
    explicit ModuleFrame(const QString& caption, QWidget* parent = nullptr);

    /// To be called often: shows what the model has changed.
    virtual void refresh() = 0;
    /// Of all sizes on the module; below 1 counts as 1, so that all stays legible.
    void setScale(double scale);

    ModelGuard guard = unguarded();

  protected:
    /// A unit above a digit well, at the well's right end.
    struct Unit {
        QString text;
        double right = 0;
        bool operator==(const Unit&) const = default;
    };

    /// Gives the parts their places within `body`.
    virtual void placeParts(const QRectF& body) = 0;
    virtual void paintMore(QPainter& /*painter*/) {}

    [[nodiscard]] double scale() const { return moduleScale; }
    void setUnits(std::vector<Unit> next);
    /// Switched off: the caption shows weaker.
    void setDimmed(bool dimmed);

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    [[nodiscard]] double captionHeight() const;
    void place();
    struct Face {
        std::vector<Unit> units;
        double scale;
        bool dimmed;
        bool operator==(const Face&) const = default;
    };

    void paintPlate(QPainter& painter) const;
    void paintTexts(QPainter& painter) const;

    QString caption;
    KeptPainting<Face> kept; ///< below digits that change many times a second
    std::vector<Unit> units;
    double moduleScale = 1;
    bool dimmed = false;
};

/// Places a well and the knob that sets it in a cell: the knob beside the well if the cell is wide,
/// below it if it is narrow and high enough. Returns the well's right end.
double placeReading(const QRectF& cell, double scale, DigitDisplay& digits, KnobWidget& knob);

/// The height offered to a well in a row of parts.
[[nodiscard]] double wellHeightIn(double rowHeight, double scale);

/// The well for digits in the middle of a cell, no higher than `highest` and than suits them.
[[nodiscard]] QRectF wellIn(const QRectF& cell, const DigitDisplay& digits, double highest);

/// Whether a module's knobs go below its digits.
[[nodiscard]] bool isStacked(QSizeF body, double columns, double scale);

/// The gap between the parts of a module at size 1.
constexpr double partGap = 8;

} // namespace tarnel
