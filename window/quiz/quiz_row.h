#pragma once

#include "exercises/answer_row.h"
#include "window/widgets/form_binding.h"

#include <QObject>

#include <vector>

class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace tarnel {

class QuizList;
class QuizOption;
class QuizPrompt;
class QuizVerdict;

/// `QuizRow`: a sub-question, a line of its frame's grid: number and prompt, and what it is
/// answered with or, in the same place, the verdict.
class QuizRow : public QObject {
    Q_OBJECT

  public:
    /// `number` counts the panel's rows from 1.
    QuizRow(int number, AnswerRow& row, const StringTable& texts, FormBinding& binding,
            QGridLayout& grid);

    /// Whether the row belongs to the question that is up.
    [[nodiscard]] bool asked() const { return answerRow.state() != RowState::notAsked; }
    /// Whether it can still be answered.
    [[nodiscard]] bool open() const { return answerRow.state() == RowState::open; }
    [[nodiscard]] QString promptText() const;
    /// Whether it is answered with this widget.
    [[nodiscard]] bool has(const QWidget* widget) const;

    /// Takes up what has changed. Compact, it takes little room beside a replay.
    void follow(bool compact);

    /// What is answered with first.
    [[nodiscard]] QWidget* firstAnswer() const;
    /// Answers with the option of that digit, or hands the character to the list.
    void type(const QString& digit);
    /// Goes from a field on to what follows it; a single button there is pressed.
    void goOnFrom(QWidget* field);

    /// The height that it will have beside a replay, unless a long answer breaks more lines.
    [[nodiscard]] int compactHeightFor(int width) const;

    [[nodiscard]] QuizVerdict& verdictLabel() const { return *verdict; }

  private:
    [[nodiscard]] QHBoxLayout* makeAnswers(FormBinding& binding, QWidget& frame);
    void makeEntries(FormBinding& binding, QWidget& frame);
    void makeOptions(FormBinding& binding, QWidget& frame);
    void makeList(FormBinding& binding, QWidget& frame);
    [[nodiscard]] QHBoxLayout* makeVerdicts(QWidget& frame);
    void nameAnswers();
    void tellVerdict();
    void tellOwnAnswer();
    [[nodiscard]] QString givenText() const;

    AnswerRow& answerRow;
    const StringTable& texts;
    QLabel* numberLabel = nullptr;
    QuizPrompt* prompt = nullptr;
    std::vector<QLineEdit*> fields;
    std::vector<QLabel*> units;
    std::vector<QuizOption*> options;
    QuizList* list = nullptr;
    std::vector<QWidget*> answers; ///< all that it is answered with
    QuizVerdict* verdict = nullptr;
    QuizVerdict* own = nullptr; ///< the student's answer beside the solution
};

} // namespace tarnel
