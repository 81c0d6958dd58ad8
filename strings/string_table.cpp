#include "strings/string_table.h"

#include "core/run_time_error.h"

#include <charconv>
#include <stdexcept>
#include <string>

namespace tarnel {

namespace {

constexpr int firstId = static_cast<int>(Text::languageWord);

[[noreturn]] void raiseSubscriptError(const std::string& what) {
    throw RunTimeError(Cause::subscriptOutOfRange, "StringTable " + what);
}

} // namespace

StringTable::StringTable(std::span<const StringEntry> entries) {
    for (const StringEntry& entry : entries) {
        if (entry.id < firstId)
            throw std::invalid_argument("text number too low: " + std::to_string(entry.id));
        const auto index = static_cast<std::size_t>(entry.id - firstId);
        if (index >= texts.size())
            texts.resize(index + 1);
        if (texts[index].data())
            throw std::invalid_argument("text number used twice: " + std::to_string(entry.id));
        texts[index] = entry.text;
    }
    for (std::size_t index = 0; index < texts.size(); ++index)
        if (texts[index].data())
            sortedIds.push_back(firstId + static_cast<int>(index));
}

std::string_view StringTable::at(int id) const {
    if (id >= firstId) {
        const auto index = static_cast<std::size_t>(id - firstId);
        if (index < texts.size() && texts[index].data())
            return texts[index];
    }
    raiseSubscriptError("text " + std::to_string(id));
}

bool StringTable::isGerman() const {
    return (*this)[Text::languageWord] == "german";
}

int StringTable::bookPage(int index) const {
    constexpr int first = static_cast<int>(Text::bookPageFirst);
    constexpr int count = static_cast<int>(Text::bookPageLast) - first + 1;
    if (index < 0 || index >= count)
        raiseSubscriptError("book page " + std::to_string(index));
    const std::string_view text = at(first + index);
    int page = 0;
    std::from_chars(text.data(), text.data() + text.size(), page);
    return page;
}

} // namespace tarnel
