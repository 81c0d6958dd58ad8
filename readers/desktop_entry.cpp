#include "readers/desktop_entry.h"

#include "readers/key_file.h"

#include <algorithm>
#include <string_view>

namespace tarnel {

namespace {

using Words = std::vector<std::string>;

/// A value of the type string: "\s", "\n", "\t", "\r" and "\\" stand for signs.
std::string unescaped(std::string_view value) {
    constexpr std::string_view letters = "sntr\\";
    constexpr std::string_view signs = " \n\t\r\\";
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const std::size_t which = value[i] == '\\' && i + 1 < value.size()
                                      ? letters.find(value[i + 1])
                                      : std::string_view::npos;
        if (which == std::string_view::npos) {
            text += value[i];
        } else {
            text += signs[which];
            ++i;
        }
    }
    return text;
}

/// Splits a command line by the rules of `Exec`. No code counts in quotes: there a percent
/// sign comes out doubled.
class LineSplitter {
  public:
    /// Nothing if a quote stays open.
    std::optional<Words> split(std::string_view line) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const char next = i + 1 < line.size() ? line[i + 1] : '\0';
            if (line[i] == '"') {
                quoted = !quoted;
                begun = true;
            } else if (!quoted && (line[i] == ' ' || line[i] == '\t')) {
                endWord();
            } else if (line[i] == '\\' && isQuotable(next)) {
                put(line[++i]);
            } else if (quoted && line[i] == '%') {
                put("%%");
                i += next == '%' ? 1 : 0;
            } else {
                put(line[i]);
            }
        }
        endWord();
        return quoted ? std::nullopt : std::optional(words);
    }

  private:
    static bool isQuotable(char sign) {
        return sign == '"' || sign == '`' || sign == '$' || sign == '\\';
    }
    template <class Text>
    void put(const Text& text) {
        word += text;
        begun = true;
    }
    void endWord() {
        if (begun)
            words.push_back(word);
        word.clear();
        begun = false;
    }

    Words words;
    std::string word;
    bool begun = false;
    bool quoted = false;
};

std::string doubledPercent(const std::string& text) {
    std::string out;
    for (const char sign : text)
        out += sign == '%' ? std::string("%%") : std::string(1, sign);
    return out;
}

std::string valueOf(const KeyGroup& keys, const char* key) {
    const auto found = keys.find(key);
    return found == keys.end() ? std::string() : unescaped(found->second);
}

/// What stands for a code in a word; nothing for a code that there isn't.
std::optional<std::string> codeText(char code, const KeyGroup& keys, const std::string& path) {
    constexpr std::string_view deprecated = "dDnNvm";
    if (code == 'f' || code == 'F')
        return "%f";
    if (code == 'u' || code == 'U')
        return "%u";
    if (code == '%')
        return "%%";
    if (code == 'c')
        return doubledPercent(valueOf(keys, "Name"));
    if (code == 'k')
        return doubledPercent(path);
    return deprecated.find(code) == std::string_view::npos ? std::nullopt : std::optional("");
}

/// A word with all codes filled in but those for the document.
std::optional<Words> filled(const std::string& word, const KeyGroup& keys,
                            const std::string& path) {
    if (word == "%i") {
        const std::string icon = doubledPercent(valueOf(keys, "Icon"));
        return icon.empty() ? Words() : Words{"--icon", icon};
    }
    std::string out;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (word[i] != '%') {
            out += word[i];
            continue;
        }
        const char code = ++i < word.size() ? word[i] : '\0';
        const std::optional<std::string> text = codeText(code, keys, path);
        if (!text)
            return {};
        out += *text;
    }
    return out.empty() && !word.empty() ? Words() : Words{out};
}

bool holdsDocument(const std::string& word) {
    for (std::size_t i = word.find('%'); i != std::string::npos; i = word.find('%', i + 2))
        if (word.compare(i, 2, "%%") != 0)
            return true;
    return false;
}

bool isOffered(const KeyGroup& keys, const DesktopFolders& folders) {
    const std::string needed = valueOf(keys, "TryExec");
    return valueOf(keys, "Type") == "Application" && valueOf(keys, "Hidden") != "true" &&
           valueOf(keys, "Terminal") != "true" && (needed.empty() || folders.program(needed));
}

} // namespace

std::optional<DesktopEntry> readDesktopEntry(const std::string& path,
                                             const DesktopFolders& folders) {
    const KeyGroup keys = readKeyGroup(path, "Desktop Entry");
    if (!isOffered(keys, folders))
        return {};
    const std::optional<Words> line = LineSplitter().split(valueOf(keys, "Exec"));
    const auto program = line && !line->empty() ? folders.program(line->front()) : std::nullopt;
    if (!program)
        return {};
    DesktopEntry entry{*program, {}};
    for (std::size_t i = 1; i < line->size(); ++i) {
        const std::optional<Words> words = filled((*line)[i], keys, path);
        if (!words)
            return {};
        entry.words.insert(entry.words.end(), words->begin(), words->end());
    }
    if (std::ranges::none_of(entry.words, holdsDocument))
        entry.words.emplace_back("%f");
    return entry;
}

} // namespace tarnel
