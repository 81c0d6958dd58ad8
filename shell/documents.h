#pragma once

#include "strings/text.h"

#include <span>

namespace tarnel {

/// An approach chart: its menu item, its document, and the session that goes with it.
struct ApproachChart {
    Text name;
    const char* document;
    const char* session;
};

/// The approach charts in the order of their menu.
[[nodiscard]] std::span<const ApproachChart> approachCharts();

/// A chapter of the book: the header of its sub menu, and its items, which follow each other as
/// their pages do.
struct BookChapter {
    const char* name;
    Text header;
    Text first;
    Text last;
};

/// The chapters in the order of their menu. The first item of all opens page 0 of the table.
[[nodiscard]] std::span<const BookChapter> bookChapters();

/// The pages of the help that the menus name themselves; each lies in the folder of its language.
constexpr const char* helpContentsPage = "index";
constexpr const char* helpProductPage = "tarnel";

/// The indexes of the pages that hold the book's abbreviations and its index.
constexpr int abbreviationsPage = 63;
constexpr int bookIndexPage = 64;

} // namespace tarnel
