#pragma once

#include "persistence/file_problem.h"
#include "persistence/text_encoding.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnel {

/// A number of degrees, from -limit to limit.
struct DegreesRule {
    FileField expected;
    double limit;
};

/// Longitudes run on over the date line and the zero meridian, so that those of a flight never
/// jump: half a turn beyond a whole one. Degrees, to either side.
constexpr double farthestLongitude = 540;

/// A whole number, from `least` to `most`.
struct WholeRule {
    FileField expected;
    std::int16_t least;
    std::int16_t most;
};

/// The lines of a chart or session file one after the other, plain or enciphered, ended by CR LF or
/// LF. A wrong line ends the reading by throwing its `FileProblem`. Lines that it hands out live as
/// long as itself.
class LineSource {
  public:
    explicit LineSource(std::string fileBytes) : bytes(std::move(fileBytes)) {}
    LineSource(const LineSource&) = delete;
    LineSource& operator=(const LineSource&) = delete;

    /// Goes to the first line of the content: reads over the header of an enciphered file, the key
    /// in its fourth line included, and deciphers the rest.
    void openEitherForm();
    /// The same for a file that is never enciphered.
    void openPlain();

    [[nodiscard]] bool atEnd() const { return at == bytes.size(); }
    /// The next line, empty at the end.
    [[nodiscard]] std::string_view peek() const;
    /// Takes the next line, which has to hold `expected`.
    std::string_view next(FileField expected);
    /// The same without its first `tagLength` bytes, whatever they are, and without the rest of a
    /// character that their end would cut.
    std::string_view afterTag(std::size_t tagLength, FileField expected);

    /// `text` of a line as UTF-8, of at most `longest` characters.
    [[nodiscard]] std::string decoded(std::string_view text, int longest, FileField expected) const;

    /// `text` as a number; blanks and quotes around it, "+" and a missing 0 before the mark are
    /// taken as well.
    [[nodiscard]] double number(std::string_view text, FileField expected) const;
    [[nodiscard]] double number(std::string_view text, DegreesRule rule) const;
    /// The same rounded to a whole number, ties to the even one.
    [[nodiscard]] std::int16_t number(std::string_view text, WholeRule rule) const;

    template <class Rule>
    auto nextNumber(Rule rule) {
        return number(next(rule.expected), rule);
    }

    /// Ends the reading: the line taken last does not hold `expected`.
    [[noreturn]] void fail(FileField expected) const;
    /// Ends the reading: the line to come is one too many.
    [[noreturn]] void failBeyond(FileField expected) const;

  private:
    void skipByteOrderMark();
    void decipher();
    void findEncoding();

    std::string bytes;
    std::size_t at = 0; ///< where the next line begins
    int lineNumber = 0; ///< of the line taken last, from 1
    TextEncoding encoding = TextEncoding::utf8;
};

} // namespace tarnel
