#pragma once

#include "authoring/local_text.h"

#include <initializer_list>

namespace tarnel {

/// What a course says of itself: tasks, questions and the comments of solutions.
enum class Phrase {
#define PHRASE(name, german, english) name,
#include "authoring/wording.def"
};

/// A phrase in both languages, "%1", "%2" and so on replaced by the values in their order.
[[nodiscard]] LocalText worded(Phrase phrase, std::initializer_list<LocalText> values = {});

/// The same text in both languages.
[[nodiscard]] LocalText same(const std::string& text);
/// Degrees in three digits.
[[nodiscard]] LocalText courseText(double degrees);
/// A whole number of something.
[[nodiscard]] LocalText number(double value);
/// A number with one decimal: a point in English, a comma in German.
[[nodiscard]] LocalText tenths(double value);
/// Minutes and seconds, such as 1:05.
[[nodiscard]] LocalText minutesAndSeconds(double seconds);

} // namespace tarnel
