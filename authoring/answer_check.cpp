#include "authoring/answer_check.h"

#include "core/number_text.h"
#include "exercises/question_draw.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <set>

namespace tarnel {

namespace {

using enum StudyColumn;

/// The exercise that poses a question, with its offers drawn.
class PosedQuestion {
  public:
    PosedQuestion(const BuiltQuestion& question, Language language)
        : exercise(exerciseOf(static_cast<int>(question.kind.type))
                       ->make(language == Language::german ? germanTable() : englishTable(), draw)),
          record(question.in(language)),
          type(question.kind.type) {
        exercise->take(record);
    }

    [[nodiscard]] int rowCount() const { return exercise->rowCount(); }
    [[nodiscard]] std::string prompt(int row) const { return exercise->prompt(row); }
    [[nodiscard]] std::vector<std::string> offers(int row) const { return exercise->offers(row); }
    [[nodiscard]] std::string answer(int row) const { return exercise->solution(row); }
    /// The captions of the offers that are taken as right.
    [[nodiscard]] std::vector<std::string> right(int row) const;
    /// Whether an answer names two offers that are both right: the movement of an HSI's bar.
    [[nodiscard]] bool isPair(int row) const { return answer(row).starts_with('+'); }

  private:
    /// What the student types who knows the answer.
    [[nodiscard]] std::vector<std::string> typed(int row) const;

    QuestionDraw draw = QuestionDraw::ofChoices();
    std::unique_ptr<Exercise> exercise;
    const StudyRecord& record;
    ExerciseType type;
};

std::vector<std::string> PosedQuestion::typed(int row) const {
    if (type != ExerciseType::wind)
        return {};
    constexpr StudyColumn numbers[] = {ans1, ans3, ans5, ans7};
    const std::string& number = record[numbers[row]];
    const std::size_t point = number.find('.');
    if (row < 3 || point == std::string::npos)
        return {number, ""};
    return {number.substr(0, point), number.substr(point + 1)};
}

std::vector<std::string> PosedQuestion::right(int row) const {
    std::vector<std::string> captions;
    const std::vector<std::string> all = offers(row);
    for (std::size_t i = 0; i < all.size(); ++i)
        if (exercise->isRight({row, static_cast<int>(i), typed(row)}))
            captions.push_back(all[i]);
    return captions;
}

/// Nothing for a text that has more than digits and a point.
std::optional<double> numberIn(const std::string& text) {
    return text.find_first_not_of("0123456789.") == std::string::npos ? parseNumber(text)
                                                                      : std::nullopt;
}

/// Neither a direction to a multiple of 5 nor a text without a number.
bool isOdd(const std::string& text) {
    const auto number = numberIn(text);
    return number && std::remainder(*number, 5) != 0;
}

void checkDistinct(const std::vector<std::string>& offers, const std::string& right,
                   const std::function<void(const std::string&)>& wrong) {
    std::set<std::string> seen;
    bool roundOnes = true;
    for (const std::string& offer : offers) {
        if (!offer.empty() && !seen.insert(offer).second)
            return wrong(" offers \"" + offer + "\" twice");
        roundOnes = roundOnes && (offer == right || (numberIn(offer) && !isOdd(offer)));
    }
    if (roundOnes && isOdd(right))
        wrong(" offers \"" + right + "\" alone that is no multiple of 5, which tells the answer");
}

void checkOffers(const PosedQuestion& posed, int row,
                 const std::function<void(const std::string&)>& wrong) {
    const std::string which = "row " + std::to_string(row + 1);
    const std::vector<std::string> right = posed.right(row);
    const std::string answer = "\"" + posed.answer(row) + "\"";
    if (right.empty())
        return wrong(which + " has no right answer: its list lacks " + answer);
    if (std::any_of(right.begin(), right.end(), [](const auto& text) { return text.empty(); }))
        return wrong(which + " can't be answered: the list has no text for " + answer);
    if (right.size() != (posed.isPair(row) ? 2U : 1U))
        return wrong(which + " has " + std::to_string(right.size()) + " right answers for " +
                     answer);
    checkDistinct(posed.offers(row), right.front(),
                  [&](const std::string& text) { wrong(which + text); });
}

void checkTexts(const BuiltQuestion& question, SourceFindings& findings) {
    const StudyRecord& german = question.in(Language::german);
    const StudyRecord& english = question.in(Language::english);
    for (std::size_t i = 0; i < german.columns.size(); ++i) {
        const std::string& left = german.columns[i];
        const std::string& right = english.columns[i];
        if (left.empty() != right.empty())
            findings.push_back(
                question.finding((left.empty() ? "a German text is missing for \"" + right
                                               : "an English text is missing for \"" + left) +
                                 "\""));
        else if ((numberIn(left) || numberIn(right)) && left != right)
            findings.push_back(question.finding(
                std::string("the answer is \"").append(left).append("\" in German and \"") + right +
                "\" in English"));
    }
}

constexpr std::pair<const char*, StudyColumn> answerColumns[] = {
    {"ans1", ans1}, {"ans2", ans2}, {"ans3", ans3}, {"ans4", ans4},
    {"ans5", ans5}, {"ans6", ans6}, {"ans7", ans7}};

/// A direction may be written with fewer digits.
bool isSame(const std::string& expected, const std::string& found) {
    return expected == found || (numberIn(expected) && numberIn(expected) == numberIn(found));
}

/// What the exercise takes as right in a column of the record; a holding works out its own.
std::string answerIn(const BuiltQuestion& question, Language language, StudyColumn column) {
    const bool holding = exerciseOf(static_cast<int>(question.kind.type))->fliesHolding &&
                         question.kind.type != ExerciseType::wind;
    if (!holding || column < ans4)
        return question.in(language)[column];
    return PosedQuestion(question, language)
        .answer(static_cast<int>(column) - static_cast<int>(ans4));
}

void checkExpected(const BuiltQuestion& question, SourceFindings& findings) {
    for (const auto& [name, column] : answerColumns) {
        const auto expected = question.flown.situation.answers.find(name);
        if (expected == question.flown.situation.answers.end())
            continue;
        const std::string german = answerIn(question, Language::german, column);
        const std::string english = answerIn(question, Language::english, column);
        if (english.empty())
            findings.push_back(question.finding(std::string("this exercise has no ") + name));
        else if (!isSame(expected->second, german) && !isSame(expected->second, english))
            findings.push_back(question.finding(std::string(name) + " = \"" + expected->second +
                                                "\" is expected, and the flight gives \"" +
                                                english + "\""));
    }
}

} // namespace

void checkAnswers(const BuiltQuestion& question, SourceFindings& findings) {
    checkTexts(question, findings);
    checkExpected(question, findings);
    std::set<std::string> told; // once for both languages
    for (const Language language : {Language::english, Language::german}) {
        const PosedQuestion posed(question, language);
        for (int row = 0; row < posed.rowCount(); ++row) {
            const auto wrong = [&](const std::string& text) {
                if (told.insert(text).second)
                    findings.push_back(question.finding(text));
            };
            if (posed.prompt(row).empty())
                wrong("row " + std::to_string(row + 1) + " asks nothing");
            checkOffers(posed, row, wrong);
        }
    }
}

} // namespace tarnel
