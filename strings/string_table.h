#pragma once

#include "strings/text.h"

#include <string_view>

namespace tarnel {

struct TextRow;

/// One language's numbered texts of the user interface, in UTF-8.
class StringTable {
  public:
    using Language = const char* TextRow::*;

    explicit constexpr StringTable(Language which) : language(which) {}

    /// The text as it stands, blanks at its ends included. An unknown number is a subscript error.
    [[nodiscard]] std::string_view at(int id) const;
    [[nodiscard]] std::string_view operator[](Text text) const {
        return at(static_cast<int>(text));
    }

    /// Whether files are taken in their German form: the language word says so.
    [[nodiscard]] bool isGerman() const;

    /// The page that the book's menu item `index` opens, 0 for the first item. An index without an
    /// item is a subscript error.
    [[nodiscard]] int bookPage(int index) const;

  private:
    Language language;
};

/// The texts of the German and of the English program.
[[nodiscard]] const StringTable& germanTable();
[[nodiscard]] const StringTable& englishTable();

} // namespace tarnel
