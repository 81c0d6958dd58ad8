#include "exercises/question_key.h"

#include "exercises/text_hash.h"

#include <map>
#include <string>

namespace tarnel {

namespace {

/// What the names of English sessions begin with.
constexpr std::string_view languageMark = "e-";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The flight and all numbers, in the order of the columns.
std::string identity(const StudyRecord& record) {
    std::string_view session = record[StudyColumn::sessionName];
    if (session.starts_with(languageMark))
        session.remove_prefix(languageMark.size());
    std::string text(session);
    for (const std::string& column : record.columns) {
        if (&column == &record[StudyColumn::sessionName])
            continue;
        text += '\n';
        for (std::size_t i = 0; i < column.size(); ++i)
            if (isDigit(column[i]))
                text += column[i];
            else if (i > 0 && isDigit(column[i - 1]))
                text += ' ';
    }
    return text;
}

} // namespace

std::vector<std::int64_t> questionKeys(const std::vector<StudyRecord>& records) {
    std::map<std::string, int> met;
    std::vector<std::int64_t> keys;
    keys.reserve(records.size());
    for (const StudyRecord& record : records) {
        std::string text = identity(record);
        if (const int before = met[text]++; before > 0)
            text += '#' + std::to_string(before);
        keys.push_back(static_cast<std::int64_t>(textHash(text)));
    }
    return keys;
}

} // namespace tarnel
