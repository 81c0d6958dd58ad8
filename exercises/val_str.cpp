#include "exercises/val_str.h"

#include "core/number_text.h"

#include <algorithm>
#include <charconv>

namespace tarnel {

namespace {

bool startsNumber(std::string_view text) {
    const bool point = text.starts_with('.');
    const std::string_view digits = text.substr(point ? 1 : 0);
    return !digits.empty() && digits.front() >= '0' && digits.front() <= '9';
}

} // namespace

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    double amount = 0;
    if (!startsNumber(text) ||
        std::from_chars(text.data(), text.data() + text.size(), amount).ec != std::errc())
        return 0;
    return negative ? -amount : amount;
}

std::string Str(std::int64_t number) {
    return number < 0 ? numberText(number) : " " + numberText(number);
}

} // namespace tarnel
