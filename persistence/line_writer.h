#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnel {

/// The lines of a chart or session file that is being written, each ended by CR LF.
class LineWriter {
  public:
    /// With a `key` (1 to 99) the file is enciphered and begins with a header, of which `title` is
    /// the second line. `expectedBytes` saves growing.
    LineWriter(std::optional<int> key, std::string_view title, std::size_t expectedBytes);

    /// A line as it stands, ASCII.
    void line(std::string_view text);
    /// A text in UTF-8. Control characters, line ends among them, become blanks: a line must stay
    /// one line in either form.
    void textLine(std::string_view tag, std::string_view text);
    /// A number in the shortest decimal form that reads back to the same bits, "." as the mark. One
    /// that is infinite or NaN becomes 0, so that the rest of the file can be read.
    void numberLine(std::string_view tag, double value);
    void numberLine(double value) { numberLine({}, value); }
    void numberLine(std::string_view tag, std::int16_t value);
    void numberLine(std::int16_t value) { numberLine({}, value); }

    /// The bytes of the file. Ends the writing.
    [[nodiscard]] std::string finish() &&;

  private:
    /// Room for `size` bytes at the end; the part not used is given back by `closeLine`.
    char* room(std::size_t size);
    void closeLine(char* end);

    std::string bytes;
    std::size_t used = 0;
    std::size_t bodyStart = 0; ///< behind the header
    std::optional<int> fileKey;
};

} // namespace tarnel
