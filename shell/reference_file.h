#pragma once

#include "core/recording.h"
#include "strings/string_table.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// Where the flights lie that questions and practice flights show.
struct ReferencePlaces {
    std::string application; ///< folder
    std::string courses;     ///< the folder of the user's own
    const StringTable& texts;
};

/// The name of such a flight, the same in both languages: its file, in a course of one's own with
/// the course before it, as "Kurs/q.ts". Empty for an empty path.
[[nodiscard]] std::string referenceName(const std::string& path, const ReferencePlaces& places);

/// The samples behind a name; nothing if its file can't be read or lies elsewhere.
[[nodiscard]] std::optional<std::vector<Sample>> referenceFlight(const std::string& name,
                                                                 const ReferencePlaces& places);

} // namespace tarnel
