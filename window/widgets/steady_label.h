#pragma once

#include <QLabel>

namespace tarnel {

/// `SteadyLabel`: a read-out whose figures change many times a second. It is as wide as its text
/// with the widest figures, so that its neighbours stay where they are and nothing is laid out anew
/// while only figures change.
class SteadyLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// To be called when the text has changed.
    void fit();

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QString shape; ///< the text with every figure a 0
};

} // namespace tarnel
