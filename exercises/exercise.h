#pragma once

#include "exercises/heading_offers.h"
#include "exercises/study_record.h"
#include "strings/string_table.h"

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tarnel {

/// One flag a sub-question, -1 set.
using AnswerFlags = std::array<std::int16_t, 6>;

/// What the student picked: an option or list entry of a row, counted from 0, and what stands in
/// the row's fields.
struct Pick {
    int row = 0;
    int option = 0;
    std::vector<std::string> typed;
};

/// A column's text that makes an offered word right.
struct WordTest {
    StudyColumn column;
    std::string_view word;
};

/// A word that is offered in every question: right if any of its tests holds.
struct WordOffer {
    Text caption;
    std::vector<WordTest> rightWhen;
};

/// A sub-question as data: its prompt, the column that answers it, and what it offers: words, or
/// columns of the record of which the one equal to the answer is right.
struct ExerciseRow {
    std::variant<Text, StudyColumn> prompt;
    StudyColumn answer;
    std::vector<WordOffer> words;
    std::vector<StudyColumn> columns;
};

/// What an exercise asks, offers, takes as right and reveals. Rows of words, columns and headings
/// need data only; an exercise with a rule of its own overrides what the rule changes.
class Exercise {
  public:
    Exercise(const StringTable& table, std::vector<ExerciseRow> plan)
        : texts(table), plannedRows(std::move(plan)) {}
    virtual ~Exercise() = default;

    /// Takes the next question, whose offers are drawn here.
    void take(const StudyRecord& record);

    /// The question that was taken last, with what was worked out for it.
    [[nodiscard]] const StudyRecord& taken() const { return question; }
    [[nodiscard]] int rowCount() const { return static_cast<int>(plannedRows.size()); }
    /// The task above the rows; empty in exercises whose prompts say all.
    [[nodiscard]] virtual std::string task() const { return {}; }
    /// What is known besides the task, and a rule of answering that must be known beforehand; empty
    /// in exercises without.
    [[nodiscard]] virtual std::string known() const { return {}; }
    [[nodiscard]] virtual std::string rule() const { return {}; }
    [[nodiscard]] std::string prompt(int row) const;
    [[nodiscard]] virtual std::vector<std::string> offers(int row) const;
    [[nodiscard]] virtual bool isRight(const Pick& pick) const;
    /// The student's answer in words, written as the right one is.
    [[nodiscard]] virtual std::string given(const Pick& pick) const;
    /// What stands beside a row that was answered right, and what the solution tells.
    [[nodiscard]] virtual std::string rightAnswer(int row) const;
    [[nodiscard]] virtual std::string solution(int row) const { return rightAnswer(row); }

    /// Whether the row no longer takes an answer.
    [[nodiscard]] virtual bool isShut(int row, const AnswerFlags& given) const;
    /// Sets the flags that an answer to `row` uses up.
    virtual void useUp(int row, AnswerFlags& given) const;
    /// Whether an answer to `row` can finish the question.
    [[nodiscard]] virtual bool canFinish(int /*row*/) const { return true; }

  protected:
    /// Works out what `question` does not hold.
    virtual void prepare() {}
    [[nodiscard]] std::string text(Text id) const { return std::string(texts[id]); }
    [[nodiscard]] const ExerciseRow& at(int row) const {
        return plannedRows[static_cast<std::size_t>(row)];
    }

    const StringTable& texts;
    StudyRecord question;
    std::map<int, HeadingOffers> headings; ///< by row, where headings are offered

  private:
    std::vector<ExerciseRow> plannedRows;
};

} // namespace tarnel
