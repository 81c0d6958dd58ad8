#include "persistence/line_source.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "persistence/cipher.h"

#include <charconv>
#include <cmath>
#include <span>

namespace tarnel {

namespace {

constexpr std::size_t longestCharacter = 4; ///< bytes of UTF-8

/// The whole of `text` as a number the short way. False if it is not that plain.
template <class Number>
bool readPlainNumber(std::string_view text, Number& value) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

void LineSource::openPlain() {
    skipByteOrderMark();
    findEncoding();
}

void LineSource::openEitherForm() {
    skipByteOrderMark();
    if (peek().starts_with("*****"))
        decipher();
    findEncoding();
}

void LineSource::skipByteOrderMark() {
    at = bytes.size() - withoutByteOrderMark(bytes).size();
}

void LineSource::decipher() {
    for (int headerLine = 0; headerLine < 3; ++headerLine)
        next(FileField::key);
    const double key = number(next(FileField::key), FileField::key);
    if (key < lowestKey || key > highestKey || key != std::floor(key))
        fail(FileField::key);
    Cipher(static_cast<int>(key)).Decrypt(std::span(bytes).subspan(at));
}

void LineSource::findEncoding() {
    encoding = encodingOf(std::string_view(bytes).substr(at));
}

std::string_view LineSource::peek() const {
    std::string_view line = std::string_view(bytes).substr(at);
    line = line.substr(0, line.find('\n'));
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::string_view LineSource::next(FileField expected) {
    if (atEnd())
        throw FileProblem{lineNumber + 1, expected, true};
    std::string_view line = std::string_view(bytes).substr(at);
    const auto end = line.find('\n');
    at = end == std::string_view::npos ? bytes.size() : at + end + 1;
    ++lineNumber;
    line = line.substr(0, end);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::string_view LineSource::afterTag(std::size_t tagLength, FileField expected) {
    const std::string_view line = next(expected);
    if (line.size() < tagLength)
        fail(expected);
    if (tagLength > 0 && encoding == TextEncoding::utf8)
        tagLength = nextCharacter(line, tagLength - 1);
    return line.substr(tagLength);
}

std::string LineSource::decoded(std::string_view text, int longest, FileField expected) const {
    const auto most = static_cast<std::size_t>(longest);
    if (text.size() > most * longestCharacter)
        fail(expected);
    std::string decoded = toUtf8(text, encoding);
    if (characterCount(decoded) > most)
        fail(expected);
    return decoded;
}

double LineSource::number(std::string_view text, FileField expected) const {
    double value = 0;
    if (readPlainNumber(text, value) && std::isfinite(value))
        return value;
    const auto wrapped = parseNumber(text);
    if (!wrapped)
        fail(expected);
    return *wrapped;
}

double LineSource::number(std::string_view text, DegreesRule rule) const {
    const double value = number(text, rule.expected);
    if (std::abs(value) > rule.limit)
        fail(rule.expected);
    return value;
}

std::int16_t LineSource::number(std::string_view text, WholeRule rule) const {
    std::int16_t whole = 0;
    if (!readPlainNumber(text, whole)) {
        const double rounded = roundToEven(number(text, rule.expected));
        if (!(rounded >= rule.least && rounded <= rule.most))
            fail(rule.expected);
        whole = toInt16(rounded);
    }
    if (whole < rule.least || whole > rule.most)
        fail(rule.expected);
    return whole;
}

void LineSource::fail(FileField expected) const {
    throw FileProblem{lineNumber, expected, false};
}

void LineSource::failBeyond(FileField expected) const {
    throw FileProblem{lineNumber + 1, expected, false};
}

} // namespace tarnel
