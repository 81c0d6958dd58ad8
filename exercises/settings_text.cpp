#include "exercises/settings_text.h"

#include "core/plain_text.h"

#include <algorithm>
#include <charconv>

namespace tarnel {

namespace {

constexpr int hexadecimal = 16;

/// What a backslash and a letter stand for in a value.
struct Escape {
    char letter;
    char meaning;
};
constexpr Escape escapes[] = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'"', '"'}, {'\\', '\\'}};

bool isPlain(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
           c == '-' || c == '.';
}

bool isHexDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

std::string twoDigits(char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {digits[byte / hexadecimal], digits[byte % hexadecimal]};
}

std::string keyText(std::string_view key) {
    std::string text;
    for (const char c : key)
        text += isPlain(c) ? std::string(1, c) : "%" + twoDigits(c);
    return text;
}

std::string keyFrom(std::string_view text) {
    std::string key;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escaped = text[i] == '%' && i + 2 < text.size() && isHexDigit(text[i + 1]) &&
                             isHexDigit(text[i + 2]);
        if (!escaped) {
            key += text[i];
            continue;
        }
        unsigned char byte = 0;
        std::from_chars(&text[i + 1], &text[i + 1] + 2, byte, hexadecimal);
        key += static_cast<char>(byte);
        i += 2;
    }
    return key;
}

std::string valueText(std::string_view value) {
    if (std::ranges::all_of(value, isPlain))
        return std::string(value);
    std::string text = value.starts_with('@') ? "\"@" : "\"";
    bool digitWouldJoin = false;
    for (const char c : value) {
        const auto* known = std::ranges::find(escapes, c, &Escape::meaning);
        const bool control = static_cast<unsigned char>(c) < ' ' && known == std::end(escapes);
        const bool asDigits = control || (digitWouldJoin && isHexDigit(c));
        if (asDigits)
            text += "\\x" + twoDigits(c);
        else if (known != std::end(escapes))
            text += {'\\', known->letter};
        else
            text += c;
        digitWouldJoin = asDigits;
    }
    return text + '"';
}

/// Takes what stands behind a backslash off `text`, and returns what it stands for.
std::string escapeFrom(std::string_view& text) {
    if (text.empty())
        return {};
    const char letter = text.front();
    text.remove_prefix(1);
    if (letter != 'x') {
        const auto* known = std::ranges::find(escapes, letter, &Escape::letter);
        return {known == std::end(escapes) ? letter : known->meaning};
    }
    const auto digits =
        std::min(text.size(), static_cast<std::size_t>(std::ranges::find_if_not(text, isHexDigit) -
                                                       text.begin()));
    unsigned char byte = 0;
    const auto read = std::from_chars(text.data(), text.data() + digits, byte, hexadecimal);
    text.remove_prefix(digits);
    return read.ec == std::errc() ? std::string(1, static_cast<char>(byte)) : std::string();
}

std::string valueFrom(std::string_view text) {
    std::string value;
    while (!text.empty()) {
        const char c = text.front();
        text.remove_prefix(1);
        if (c == '\\')
            value += escapeFrom(text);
        else if (c != '"')
            value += c;
    }
    return value.starts_with("@@") ? value.substr(1) : value;
}

void readLine(std::string_view line, std::string& application, SettingsTable& table) {
    if (line.starts_with('[') && line.ends_with(']')) {
        application = keyFrom(line.substr(1, line.size() - 2));
        return;
    }
    const auto equals = line.find('=');
    const std::string_view key = trimmed(line.substr(0, equals));
    const auto slash = key.find_first_of("\\/");
    const bool wellFormed = equals != std::string_view::npos && slash != std::string_view::npos &&
                            slash == key.find_last_of("\\/") && !line.starts_with(';') &&
                            !line.starts_with('#') && !application.empty();
    if (wellFormed)
        table[application][keyFrom(key.substr(0, slash))][keyFrom(key.substr(slash + 1))] =
            valueFrom(trimmed(line.substr(equals + 1)));
}

} // namespace

SettingsTable readSettings(std::string_view text) {
    SettingsTable table;
    std::string application;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        readLine(trimmed(line), application, table);
    }
    return table;
}

std::string writeSettings(const SettingsTable& table) {
    std::string text;
    for (const auto& [application, sections] : table) {
        text += "[" + keyText(application) + "]\n";
        for (const auto& [section, keys] : sections)
            for (const auto& [key, value] : keys)
                text += keyText(section) + "\\" + keyText(key) + "=" + valueText(value) + "\n";
        text += "\n";
    }
    return text;
}

} // namespace tarnel
