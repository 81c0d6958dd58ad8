#pragma once

#include <QPushButton>

namespace tarnel {

/// `QuizOption`: an answer to choose, with the digit of the keyboard that chooses it.
class QuizOption : public QPushButton {
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
