#pragma once

#include "exercises/answer_row.h"

#include <QLabel>

namespace tarnel {

/// `QuizVerdict`: what became of a row, in the place of its answers: the answer with a sign, a word
/// and a colour. A solution stands in plain ink; the sign beside it still tells the verdict.
class QuizVerdict : public QLabel {
    Q_OBJECT

  public:
    explicit QuizVerdict(QWidget* parent);

    /// `word` is the verdict where the answer does not tell it; it may be empty.
    void tell(Verdict verdict, bool solution, const QString& answer, const QString& word);

    /// The width that an answer and a word take.
    [[nodiscard]] int widthFor(const QString& answer, const QString& word) const;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QColor verdictColour() const;
    [[nodiscard]] QFont answerFont() const;
    [[nodiscard]] QFont wordFont() const;
    void paintSign(QPainter& painter, const QRectF& place) const;

    Verdict verdict = Verdict::notYet;
    bool solution = false;
    QString word;
};

} // namespace tarnel
