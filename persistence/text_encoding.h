#pragma once

#include <string>
#include <string_view>

namespace tarnel {

/// How the texts in a file are encoded. In memory every text is UTF-8.
///
/// Earlier installations know Windows-1252 alone, and their files have to open here. A file is
/// taken as UTF-8 if all of it is valid UTF-8, else as Windows-1252. A file is written in
/// Windows-1252, so that earlier installations read it too, unless that can't hold its texts or
/// would be taken for UTF-8 by the rule above: then it is UTF-8. So what is written reads back as
/// it was, and is written as the same bytes again. A byte-order mark is read over, never written.
/// An enciphered file follows the same rule below its cipher.
enum class TextEncoding { utf8, windows1252 };

/// The encoding in which the bytes of a file are read.
[[nodiscard]] TextEncoding encodingOf(std::string_view bytes);

/// `bytes` of a file as UTF-8. The five bytes that Windows-1252 leaves open become the control
/// characters of the same number, as Windows has it.
[[nodiscard]] std::string toUtf8(std::string_view bytes, TextEncoding encoding);

/// `bytes` behind the byte-order mark, if they begin with one.
[[nodiscard]] std::string_view withoutByteOrderMark(std::string_view bytes);

/// Where the character that starts at `at` of valid UTF-8 ends.
[[nodiscard]] std::size_t nextCharacter(std::string_view text, std::size_t at);

/// The characters of valid UTF-8.
[[nodiscard]] std::size_t characterCount(std::string_view text);

/// `text`, which is valid UTF-8, up to its first `most` characters.
[[nodiscard]] std::string_view firstCharacters(std::string_view text, std::size_t most);

/// `text`, which is valid UTF-8, as the bytes of a file.
[[nodiscard]] std::string encodeForFile(std::string text);

} // namespace tarnel
