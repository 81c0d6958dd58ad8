#include "exercises/exercise.h"

#include <algorithm>

namespace tarnel {

void Exercise::take(const StudyRecord& record) {
    question = record;
    prepare();
}

std::string Exercise::prompt(int row) const {
    const auto& prompt = at(row).prompt;
    if (const auto* column = std::get_if<StudyColumn>(&prompt))
        return question[*column];
    return text(std::get<Text>(prompt));
}

std::vector<std::string> Exercise::offers(int row) const {
    if (const auto found = headings.find(row); found != headings.end())
        return found->second.captions();
    std::vector<std::string> captions;
    for (const WordOffer& word : at(row).words)
        captions.push_back(text(word.caption));
    for (const StudyColumn column : at(row).columns)
        captions.push_back(question[column]);
    return captions;
}

bool Exercise::isRight(const Pick& pick) const {
    if (const auto found = headings.find(pick.row); found != headings.end())
        return found->second.isRight(pick.option);
    const ExerciseRow& row = at(pick.row);
    const auto option = static_cast<std::size_t>(pick.option);
    if (!row.columns.empty())
        return question[row.columns[option]] == question[row.answer];
    return std::ranges::any_of(row.words[option].rightWhen, [this](const WordTest& test) {
        return question[test.column] == test.word;
    });
}

std::string Exercise::given(const Pick& pick) const {
    return offers(pick.row)[static_cast<std::size_t>(pick.option)];
}

std::string Exercise::rightAnswer(int row) const {
    return question[at(row).answer];
}

bool Exercise::isShut(int row, const AnswerFlags& given) const {
    return given[static_cast<std::size_t>(row)] != 0;
}

void Exercise::useUp(int row, AnswerFlags& given) const {
    given[static_cast<std::size_t>(row)] = -1;
}

} // namespace tarnel
