#include "navdata/nav_data.h"

#include "navdata/gzip.h"
#include "navdata/nav_dat.h"
#include "navdata/our_airports.h"
#include "persistence/text_encoding.h"

#include <algorithm>

namespace tarnel {

namespace {

/// Unpacks the bytes and gives their text to `read`. What is packed is whole or refused.
template <class Read>
NavData readPacked(std::string bytes, Read read) {
    const Unpacked content = unpacked(std::move(bytes), largestNavData);
    if (content.whole) {
        const std::string_view text = withoutByteOrderMark(content.bytes);
        return read(toUtf8(text, encodingOf(text)));
    }
    NavData data;
    const auto lines = std::ranges::count(content.bytes, '\n');
    data.refused = NavProblem{static_cast<int>(lines) + 1, NavField::packed};
    return data;
}

} // namespace

NavData readNavData(std::string bytes) {
    return readPacked(std::move(bytes), [](const std::string& text) {
        return isNavDat(text) ? readNavDat(text) : readOurNavaids(text);
    });
}

NavData readRunways(std::string bytes) {
    return readPacked(std::move(bytes),
                      [](const std::string& text) { return readOurRunways(text); });
}

} // namespace tarnel
