#pragma once

#include "exercises/answer_row.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <vector>

class QLabel;
class QLineEdit;

namespace tarnel {

class QuizList;
class QuizOption;
class QuizVerdict;

/// `QuizRow`: a sub-question: number and prompt, and what it is answered with or, afterwards, the
/// verdict.
class QuizRow : public QWidget {
    Q_OBJECT

  public:
    /// `number` counts the panel's rows from 1.
    QuizRow(int number, AnswerRow& row, const StringTable& texts, FormBinding& binding,
            QWidget* parent);

    /// Whether the row belongs to the question that is up.
    [[nodiscard]] bool asked() const { return answerRow.state() != RowState::notAsked; }
    /// Whether it can still be answered.
    [[nodiscard]] bool open() const { return answerRow.state() == RowState::open; }
    [[nodiscard]] QString promptText() const;

    /// Everything that takes room in the row.
    [[nodiscard]] QString content() const;
    /// Takes up what has changed.
    void follow();
    /// Takes little room, beside a replay.
    void setCompact(bool compact);

    /// What is answered with first.
    [[nodiscard]] QWidget* firstAnswer() const;
    /// Answers with the option of that digit, or hands the character to the list.
    void type(const QString& digit);
    /// Goes from a field on to what follows it; a single button there is pressed.
    void goOnFrom(QWidget* field);

    /// The widths that prompt and answers take in one line, and the answers in two.
    [[nodiscard]] int promptWidth() const;
    [[nodiscard]] int answersWidth() const;
    [[nodiscard]] int brokenAnswersWidth() const;
    /// The height at a width, of which the prompt has a part.
    [[nodiscard]] int heightFor(int width, int promptWidth) const;
    /// The height that it will have beside a replay, unless a long answer breaks more lines.
    [[nodiscard]] int compactHeightFor(int width) const;
    /// Takes a place, with so much of it for the prompt; less if the answers need it.
    void layOut(const QRect& place, int promptWidth);

    [[nodiscard]] QuizVerdict& verdictLabel() const { return *verdict; }

  private:
    void makeEntries(FormBinding& binding);
    void makeOptions(FormBinding& binding);
    void makeList(FormBinding& binding);
    void nameAnswers();
    void tellVerdict();
    void tellOwnAnswer();
    [[nodiscard]] QString givenText() const;
    [[nodiscard]] int rowHeight() const;
    [[nodiscard]] int verdictsWidth() const;
    [[nodiscard]] int widgetsWidth(int (QuizOption::*optionWidth)() const) const;
    [[nodiscard]] int roomFor(int widgets) const;
    [[nodiscard]] int scaled(int pixels) const;
    [[nodiscard]] int entriesWidth() const;
    [[nodiscard]] int widestOption() const;
    [[nodiscard]] int listWidth() const;
    [[nodiscard]] int promptPart(int width, int wanted) const;
    void layOutAnswers(int left, int width);
    void layOutOptions(int left, int width);

    AnswerRow& answerRow;
    const StringTable& texts;
    QLabel* numberLabel = nullptr;
    QLabel* prompt = nullptr;
    std::vector<QLineEdit*> fields;
    std::vector<QLabel*> units;
    std::vector<QuizOption*> options;
    QuizList* list = nullptr;
    QuizVerdict* verdict = nullptr;
    QuizVerdict* own = nullptr; ///< the student's answer beside the solution
    bool compact = false;
};

} // namespace tarnel
