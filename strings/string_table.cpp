#include "strings/string_table.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <string>

namespace tarnel {

struct TextRow {
    int number;
    const char* german;
    const char* english;
};

namespace {

constexpr TextRow rows[] = {
#define TEXT(number, name, german, english) {number, german, english},
#include "strings/texts.def"
};

constexpr std::string_view bookPages[] = {
#define BOOK_PAGES(...) __VA_ARGS__,
#include "strings/texts.def"
};

constexpr int firstNumber = static_cast<int>(Text::languageWord);
constexpr int firstPage = static_cast<int>(Text::bookPageFirst);
constexpr int lastPage = static_cast<int>(Text::bookPageLast);
static_assert(std::size(bookPages) == lastPage - firstPage + 1);

constexpr std::size_t blanksBefore(std::string_view text) {
    return std::min(text.find_first_not_of(' '), text.size());
}

constexpr std::size_t blanksBehind(std::string_view text) {
    return text.size() - 1 - text.find_last_not_of(' ');
}

/// How often %1 to %9 stand in `text`, by their digits.
constexpr std::array<int, 10> placeholders(std::string_view text) {
    std::array<int, 10> count{};
    for (std::size_t at = 0; at + 1 < text.size(); ++at)
        if (text[at] == '%' && text[at + 1] >= '1' && text[at + 1] <= '9')
            ++count[static_cast<std::size_t>(text[at + 1] - '0')];
    return count;
}

constexpr bool agree(std::string_view german, std::string_view english) {
    return blanksBefore(german) < german.size() && blanksBefore(english) < english.size() &&
           blanksBefore(german) == blanksBefore(english) &&
           blanksBehind(german) == blanksBehind(english) &&
           placeholders(german) == placeholders(english);
}

#define TEXT(number, name, german, english)                                                        \
    static_assert(agree(german, english), #name " is blank, or its languages differ in form");
#include "strings/texts.def"

constexpr int lastNumber = std::ranges::max(rows, {}, &TextRow::number).number;

/// The row of each number from the first on, none where the number is free.
constexpr auto rowOf = [] {
    std::array<const TextRow*, lastNumber - firstNumber + 1> found{};
    for (const TextRow& row : rows) {
        const TextRow*& place = found.at(static_cast<std::size_t>(row.number - firstNumber));
        if (place || (row.number >= firstPage && row.number <= lastPage))
            throw "this number is used twice";
        place = &row;
    }
    return found;
}();

[[noreturn]] void raiseSubscriptError(const std::string& what) {
    throw RunTimeError(Cause::subscriptOutOfRange, "StringTable " + what);
}

} // namespace

std::string_view StringTable::at(int id) const {
    if (id >= firstPage && id <= lastPage)
        return bookPages[id - firstPage];
    const TextRow* row = id >= firstNumber && id <= lastNumber
                             ? rowOf[static_cast<std::size_t>(id - firstNumber)]
                             : nullptr;
    if (!row)
        raiseSubscriptError("text " + std::to_string(id));
    return row->*language;
}

bool StringTable::isGerman() const {
    return (*this)[Text::languageWord] == "german";
}

int StringTable::bookPage(int index) const {
    if (index < 0 || index > lastPage - firstPage)
        raiseSubscriptError("book page " + std::to_string(index));
    const std::string_view text = at(firstPage + index);
    int page = 0;
    std::from_chars(text.data(), text.data() + text.size(), page);
    return page;
}

const StringTable& germanTable() {
    static constexpr StringTable table(&TextRow::german);
    return table;
}

const StringTable& englishTable() {
    static constexpr StringTable table(&TextRow::english);
    return table;
}

} // namespace tarnel
