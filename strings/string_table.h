#pragma once

#include "strings/text.h"

#include <span>
#include <string_view>
#include <vector>

namespace tarnel {

/// A number and its text in UTF-8; the text must live as long as the table made from it.
struct StringEntry {
    int id;
    const char* text;
};

/// One language's numbered texts of the user interface.
class StringTable {
  public:
    /// Throws std::invalid_argument for an id below 100 and for one that comes twice.
    explicit StringTable(std::span<const StringEntry> entries);

    /// The text as it stands, blanks at its ends included. An unknown number is a subscript error.
    [[nodiscard]] std::string_view at(int id) const;
    [[nodiscard]] std::string_view operator[](Text text) const {
        return at(static_cast<int>(text));
    }

    /// All numbers of the table, ascending.
    [[nodiscard]] const std::vector<int>& ids() const { return sortedIds; }

    /// Whether files are taken in their German form: the language word says so.
    [[nodiscard]] bool isGerman() const;

    /// The page that the book's menu item `index` opens, 0 for the first item. An index without an
    /// item is a subscript error.
    [[nodiscard]] int bookPage(int index) const;

  private:
    std::vector<std::string_view> texts; // by id - 100; no data where the number is free
    std::vector<int> sortedIds;
};

} // namespace tarnel
