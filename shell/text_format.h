#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnel {

/// `text` with "%1", "%2" and so on replaced by the values in their order. A placeholder without a
/// value stays.
[[nodiscard]] std::string filledIn(std::string_view text,
                                   std::initializer_list<std::string_view> values);

} // namespace tarnel
