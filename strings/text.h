#pragma once

namespace tarnel {

/// The number of each text of the user interface.
enum class Text : int {
#define TEXT(number, name, german, english) name = number,
#include "strings/texts.def"
    bookPageFirst = 370,
    bookPageLast = 434,
};

} // namespace tarnel
