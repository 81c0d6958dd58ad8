#include "readers/pdf_reader.h"

#include "platform/programs.h"
#include "readers/default_program.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tarnel {

namespace {

/// A usual reader: its program, the word for a document, the words for a document at a page.
struct UsualReader {
    const char* program;
    const char* document;
    std::array<const char*, 3> page;
};

/// In the order in which they are looked for. Each of them counts the first page as 1; browsers
/// take "page" as the open parameter of a PDF document's URL.
constexpr UsualReader usualReaders[] = {
    {"okular", "%f", {"-p", "%p", "%f"}},
    {"evince", "%f", {"--page-index=%p", "%f"}},
    {"papers", "%f", {"--page-index=%p", "%f"}},
    {"atril", "%f", {"--page-index=%p", "%f"}},
    {"xreader", "%f", {"--page-index=%p", "%f"}},
    {"qpdfview", "%f", {"%f#%p"}},
    {"zathura", "%f", {"-P", "%p", "%f"}},
    {"mupdf", "%f", {"%f", "%p"}},
    {"xpdf", "%f", {"%f", "%p"}},
    {"firefox", "%u", {"%u#page=%p"}},
    {"firefox-esr", "%u", {"%u#page=%p"}},
    {"chromium", "%u", {"%u#page=%p"}},
    {"chromium-browser", "%u", {"%u#page=%p"}},
    {"sumatrapdf", "%f", {"-page", "%p", "%f"}},
    {"acrobat", "%f", {"/A", "page=%p", "%f"}},
    {"acrord32", "%f", {"/A", "page=%p", "%f"}},
    {"msedge", "%u", {"%u#page=%p"}},
};

std::span<const char* const> pageWordsOf(const UsualReader& reader) {
    const auto end = std::ranges::find(reader.page, nullptr);
    return {reader.page.begin(), end};
}

/// The path as a URL: all but letters, digits and "-._~/" as %XX.
std::string fileUrl(const std::string& path) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "-._~/0123456789"
                                       "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    // A path that begins with a drive, as "C:/", is one folder further down in a URL.
    const bool onDrive = path.size() > 1 && path[1] == ':';
    const std::size_t drive = onDrive ? 2 : 0;
    std::string url = (onDrive ? "file:///" : "file://") + path.substr(0, drive);
    for (const char sign : path.substr(drive)) {
        const auto byte = static_cast<unsigned char>(sign);
        if (plain.find(sign) != std::string_view::npos)
            url += sign;
        else
            url += {'%', digits[byte / 16], digits[byte % 16]};
    }
    return url;
}

std::string filled(std::string_view word, const std::string& path, int page) {
    std::string out;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%') {
            out += word[i];
            continue;
        }
        const char code = word[++i];
        if (code == 'f')
            out += path;
        else if (code == 'u')
            out += fileUrl(path);
        else if (code == 'p')
            out += std::to_string(page);
        else
            out += '%';
    }
    return out;
}

bool isDocument(std::string_view word) {
    return word == "%f" || word == "%u";
}

} // namespace

PdfReader::PdfReader(DesktopEntry start, std::span<const char* const> page)
    : entry(std::move(start)), pageWords(page) {}

ProgramCall PdfReader::opening(const std::string& path, int page) const {
    ProgramCall call{entry.program, {}};
    for (const std::string& word : entry.words)
        if (page > 0 && !pageWords.empty() && isDocument(word))
            for (const char* pageWord : pageWords)
                call.words.push_back(filled(pageWord, path, page));
        else
            call.words.push_back(filled(word, path, page));
    return call;
}

std::optional<PdfReader> FindPDFReader(const DesktopFolders& folders) {
    std::optional<DesktopEntry> entry = defaultProgram("application/pdf", folders);
    if (!entry)
        if (const auto program = systemsProgramFor(".pdf"))
            entry = DesktopEntry{*program, {"%f"}};
    if (entry) {
        const std::string name = programName(entry->program);
        const auto* usual = std::ranges::find(usualReaders, name, &UsualReader::program);
        return PdfReader(*std::move(entry), usual == std::end(usualReaders)
                                                ? std::span<const char* const>()
                                                : pageWordsOf(*usual));
    }
    for (const UsualReader& reader : usualReaders)
        if (std::optional<std::string> program = folders.program(reader.program))
            return PdfReader({*std::move(program), {reader.document}}, pageWordsOf(reader));
    return {};
}

} // namespace tarnel
