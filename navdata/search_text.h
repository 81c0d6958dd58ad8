#pragma once

#include <string>
#include <string_view>

namespace tarnel {

/// `text`, UTF-8, as it is compared in a search: small letters without accents, of Latin letters
/// alone. "ä" and "ae" are both "a", as are "ö" and "oe", "ü" and "ue", so that "Nürnberg" is found
/// as "NUERNBERG" and as "Nurnberg". Other scripts stay as they are.
[[nodiscard]] std::string searchText(std::string_view text);

} // namespace tarnel
