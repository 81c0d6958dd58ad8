#pragma once

#include <sstream>
#include <string>
#include <utility>

namespace tarnel {

/// What is read off: the values of properties, controls and plain ones, with blanks between them.
template <class... Value>
std::string told(const Value&... values) {
    std::ostringstream text;
    const char* gap = "";
    const auto add = [&](const auto& value) {
        text << std::exchange(gap, " ");
        if constexpr (requires { value.text(); })
            text << value.text();
        else if constexpr (requires { value.value(); })
            text << value.value();
        else
            text << value;
    };
    (add(values), ...);
    return text.str();
}

} // namespace tarnel
