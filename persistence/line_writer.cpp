#include "persistence/line_writer.h"

#include "core/number_text.h"
#include "persistence/cipher.h"
#include "persistence/text_encoding.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <span>

namespace tarnel {

namespace {

constexpr std::string_view lineEnd = "\r\n";

char* copied(std::string_view text, char* to) {
    return std::copy(text.begin(), text.end(), to);
}

} // namespace

LineWriter::LineWriter(std::optional<int> key, std::string_view title, std::size_t expectedBytes)
    : fileKey(key) {
    constexpr std::size_t starCount = 54;
    bytes.resize(expectedBytes);
    if (!key)
        return;
    const std::string stars(starCount, '*');
    line(stars);
    line(title);
    line(stars);
    line(numberText(std::int64_t{*key}));
    bodyStart = used;
}

char* LineWriter::room(std::size_t size) {
    const std::size_t needed = used + size + lineEnd.size();
    if (needed > bytes.size())
        bytes.resize(std::max(needed, 2 * bytes.size()));
    return bytes.data() + used;
}

void LineWriter::closeLine(char* end) {
    used = static_cast<std::size_t>(copied(lineEnd, end) - bytes.data());
}

void LineWriter::line(std::string_view text) {
    closeLine(copied(text, room(text.size())));
}

void LineWriter::textLine(std::string_view tag, std::string_view text) {
    const std::string valid = toUtf8(text, encodingOf(text));
    char* start = copied(tag, room(tag.size() + valid.size()));
    char* end = copied(valid, start);
    std::replace_if(
        start, end, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    closeLine(end);
}

void LineWriter::numberLine(std::string_view tag, double value) {
    constexpr std::size_t longestNumber = 800; // digits and zeros of the smallest double
    char* start = copied(tag, room(tag.size() + longestNumber));
    const double finite = std::isfinite(value) ? value : 0;
    closeLine(std::to_chars(start, start + longestNumber, finite, std::chars_format::fixed).ptr);
}

void LineWriter::numberLine(std::string_view tag, std::int16_t value) {
    constexpr std::size_t longestNumber = 6;
    char* start = copied(tag, room(tag.size() + longestNumber));
    closeLine(std::to_chars(start, start + longestNumber, value).ptr);
}

std::string LineWriter::finish() && {
    bytes.resize(used);
    bytes = bytes.substr(0, bodyStart) + encodeForFile(bytes.substr(bodyStart));
    if (fileKey)
        Cipher(*fileKey).Encrypt(std::span(bytes).subspan(bodyStart));
    return std::move(bytes);
}

} // namespace tarnel
