#pragma once

#include <QPushButton>

namespace tarnel {

/// `QuizOption`: an answer to choose, with the digit of the keyboard that chooses it.
class QuizOption : public QPushButton {
    Q_OBJECT

  public:
    /// `digit` counts the row's answers from 1.
    QuizOption(int digit, QWidget* parent);

    /// The width in which text and digit have room.
    [[nodiscard]] int neededWidth() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QFont digitFont() const;
    [[nodiscard]] int textWidth() const;

    QString digit;
};

} // namespace tarnel
