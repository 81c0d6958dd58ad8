#pragma once

#include "instruments/digit_readout.h"
#include "window/widgets/kept_painting.h"

#include <QString>
#include <QWidget>

#include <vector>

namespace tarnel {

class PictureStore;

/// What stands in a digit well besides its digits.
struct DigitStyle {
    std::size_t pointAfter = 0; ///< a printed decimal point follows so many digits; 0 is none
    int printedZeros = 0;       ///< dimmer ones, printed behind the digits
    QString label = {};         ///< at the left
    QString unit = {};          ///< under the label
    double roomFor = 0;    ///< digits; of more than there are, so that several wells look alike
    bool measured = false; ///< green; else amber, what the user has set
};

/// `DigitDisplay`: seven-segment digits in a dark well. They are as high as the well allows and
/// keep their proportions.
class DigitDisplay : public QWidget {
    Q_OBJECT

  public:
    DigitDisplay(const DigitReadout& readout, PictureStore& pictures, DigitStyle style,
                 QWidget* parent = nullptr);

    /// Paints again if the digits differ from those shown.
    void refresh();
    void setMeasured(bool measured);
    /// Without their point the digits stand close together, as high as with it.
    void setPointShown(bool shown);
    /// Switched off: what still stands there shows weaker.
    void setDimmed(bool dimmed);
    void setLabelShown(bool shown);
    /// Of the label and all that doesn't grow with the digits.
    void setScale(double scale);

    /// The height of the digits in a well of a size.
    [[nodiscard]] double digitHeight(QSizeF well) const;
    /// The width that a well needs for digits of one pixel height.
    [[nodiscard]] double widthPerHeight() const;
    /// The height of a well that suits digits of a height.
    [[nodiscard]] static double wellHeight(double digitHeight);

  protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void paintOver(QPainter& /*painter*/) {}

  private:
    void paintWell(QPainter& painter) const;
    void paintLabel(QPainter& painter) const;
    void paintDigits(QPainter& painter) const;
    void paintPoint(QPainter& painter, QPointF corner, double height) const;
    [[nodiscard]] double labelWidth() const;
    /// The cells that the digits fill, with their point.
    [[nodiscard]] double cellCount() const;
    [[nodiscard]] QColor colour() const;

    const DigitReadout& readout;
    PictureStore& pictures;
    DigitStyle style;
    std::vector<std::int16_t> shown;
    double scale = 1;
    KeptPainting<double> keptWell; ///< at a scale
    bool dimmed = false;
    bool labelShown = true;
    bool pointShown = true;
};

} // namespace tarnel
