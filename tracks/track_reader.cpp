#include "tracks/track_reader.h"

#include "persistence/text_encoding.h"

#include <utility>

namespace tarnel {

namespace {

/// An XML file may be in UTF-16, which begins with a mark of its own.
bool isXml(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return true;
    bytes = withoutByteOrderMark(bytes);
    const auto first = bytes.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && bytes[first] == '<';
}

} // namespace

Track readTrack(std::string bytes) {
    return isXml(bytes) ? readGpx(bytes) : readCsvTrack(std::move(bytes));
}

} // namespace tarnel
