#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// The records of a text of comma-separated values (RFC 4180), one after the other.
///
/// A field that begins with a quote goes to the next single quote, line ends and commas included;
/// of two quotes within it one is meant. Any other field is taken as it stands. Lines end in LF or
/// CR LF; an empty one is read over.
class CsvRecords {
  public:
    explicit CsvRecords(std::string_view text) : rest(text) {}

    /// Takes the next record; false at the end. A quote that is never closed ends the text.
    bool next();

    [[nodiscard]] std::span<const std::string> fields() const { return {taken.data(), count}; }
    /// The line in which the record begins, from 1.
    [[nodiscard]] int line() const { return firstLine; }
    /// Whether its last field has a quote that is never closed.
    [[nodiscard]] bool quoteOpen() const { return open; }

  private:
    void takeField();
    void takeQuoted(std::string& field);

    std::string_view rest;
    std::vector<std::string> taken; ///< the first `count` are the record's; they keep their room
    std::size_t count = 0;
    int firstLine = 0;
    int nextLine = 1;
    bool open = false;
};

} // namespace tarnel
