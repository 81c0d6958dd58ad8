#pragma once

#include "core/recording.h"
#include "persistence/station_block.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// A flight with its comments, as far as its file could be read.
struct SessionFile : StationBlock {
    std::vector<std::string> comments; ///< at most `Comments::count`
    std::vector<Sample> samples;       ///< whole ones, at most `Recording::lastSample`; element 0
                                       ///< is sample 1
};

/// More than any session of 6,000 samples and 101 comments needs, in bytes.
constexpr std::size_t largestSession = std::size_t{8} << 20;

/// Reads the bytes of a `.ts` file, plain or enciphered: comments, stations and map, then 40 lines
/// and one line of separation for each sample, ended by CR LF or LF. Never throws on bad content:
/// what stood before the first wrong line is kept, of the samples the whole ones. A file that ends
/// before its first sample is wrong there. Of more than 6,000 samples the first 6,000 are read.
///
/// The number of a sample's comment is -1 to 100, whether or not the file has such a comment.
[[nodiscard]] SessionFile readSession(std::string bytes);

/// Reads no more than the comments and stations that `bytes` begin with.
[[nodiscard]] SessionFile readSessionHead(std::string bytes);

/// The bytes of a `.ts` file, enciphered if there is a `key` (1 to 99). Comments go up to the
/// highest that has a text or a sample. What `session` does not give is written as 0 or as an empty
/// text; a missing map scale is left out, and a missing map centre is 1. Numbers read back to the
/// same bits.
[[nodiscard]] std::string writeSession(const SessionFile& session, std::optional<int> key);

} // namespace tarnel
