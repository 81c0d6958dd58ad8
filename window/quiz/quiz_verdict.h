#pragma once

#include <QLabel>

namespace tarnel {

/// `QuizVerdict`: what became of a row, in the place of its answers: an answer with a sign, a word
/// and a colour of its own. Where room is short, the word goes and the answer is cut; the tool tip
/// has all of it.
class QuizVerdict : public QLabel {
    Q_OBJECT

  public:
    enum class Kind {
        right,         ///< a tick
        wrong,         ///< a cross
        solution,      ///< a dot: nothing was answered, or what was stands beside it
        rightSolution, ///< a tick, in the solution's colour
        shut           ///< a bar: the row can't be answered any more
    };

    explicit QuizVerdict(QWidget* parent);

    /// `word` stands behind the answer; it may be empty.
    void tell(Kind kind, const QString& answer, const QString& word);
    void setCompact(bool compact);

    [[nodiscard]] QSize sizeHint() const override;
    /// With room for a few letters of the answer.
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// The width that an answer and a word take.
    [[nodiscard]] int widthFor(const QString& answer, const QString& word) const;
    [[nodiscard]] QColor colour() const;
    [[nodiscard]] QFont answerFont() const;
    [[nodiscard]] QFont wordFont() const;
    void paintSign(QPainter& painter, const QRectF& place) const;

    Kind kind = Kind::solution;
    QString word;
    bool compact = false;
};

} // namespace tarnel
