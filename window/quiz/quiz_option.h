#pragma once

#include "window/widgets/choice_button.h"

namespace tarnel {

/// `QuizOption`: an answer to choose, with the digit of the keyboard that chooses it.
class QuizOption : public ChoiceButton {
    Q_OBJECT

  public:
    /// `digit` counts the row's answers from 1.
    QuizOption(int digit, QWidget* parent);

    /// The width in which the text has room in one line.
    [[nodiscard]] int lineWidth() const;
    /// The same with less around it.
    [[nodiscard]] int tightWidth() const;
    /// The least width: in two lines if the text can be broken.
    [[nodiscard]] int brokenWidth() const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QFont smallFont(double share) const;
    [[nodiscard]] QString shownText() const;
    [[nodiscard]] int digitPart() const;
    void paintText(QPainter& painter) const;

    QString digit;
};

} // namespace tarnel
