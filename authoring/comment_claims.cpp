#include "authoring/comment_claims.h"

#include "core/number_text.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <regex>
#include <string_view>
#include <utility>

namespace tarnel {

namespace {

/// How a claim is worded: the number is the first group, seconds beside minutes the second.
struct Wording {
    ClaimKind kind;
    const char* pattern;
    double unit; ///< what one of the number is
};

#define NUMBER R"((\d+(?:[.,]\d+)?))"
#define COUNT R"((\d+(?:[.,]\d+)?|one|two|three|four|eine[rn]?|zwei|drei|vier))"

constexpr Wording wordings[] = {
    {ClaimKind::distance, R"(\b(?:at|bei) )" NUMBER R"( ?NM\b)", 1},
    {ClaimKind::distance, R"(^DME )" NUMBER "(?=[,:]? )", 1},
    {ClaimKind::radial, R"(^radial (\d{3})(?=[,:]))", 1},
    {ClaimKind::radial, R"(\b(?:on|auf) (?:radial|QDR) (\d{3})\b)", 1},
    {ClaimKind::bearing, R"(\b(?:on|auf) QDM (\d{3})\b)", 1},
    {ClaimKind::time, R"(\b(\d+):(\d\d)\b)", 60},
    {ClaimKind::time, R"(\b(?:after|nach) )" COUNT R"( ?(?:minutes?|minuten?|min)\b)", 60},
    {ClaimKind::time, R"(\b)" COUNT R"( (?:minutes?|minuten?):)", 60},
    {ClaimKind::time, R"(\b(?:after|nach) )" COUNT R"( ?(?:seconds?|sekunden?|s)\b)", 1},
    {ClaimKind::heading, R"(\b(?:heading|HDG|steuerkurs) (\d{3})\b)", 1},
};

/// More digits than a number has are endless.
double numberOf(const std::string& digits) {
    return parseNumber(digits).value_or(std::numeric_limits<double>::infinity());
}

double valueOf(std::string text) {
    constexpr std::pair<std::string_view, double> counts[] = {{"one", 1},  {"two", 2}, {"three", 3},
                                                              {"four", 4}, {"ein", 1}, {"zwei", 2},
                                                              {"drei", 3}, {"vier", 4}};
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c == ',' ? '.' : c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    for (const auto& [word, count] : counts)
        if (text.starts_with(word))
            return count;
    return numberOf(text);
}

bool isMeantToCome(const std::string& before) {
    return before.ends_with("for ") || before.ends_with("für ");
}

/// A number, an operator, "=" or, for all else, a break.
struct Token {
    char sign = '|'; ///< 'n' for a number
    double value = 0;
    int decimals = 0;
    bool direction = false; ///< written with three digits
    std::size_t begin = 0;
    std::size_t end = 0;
};

constexpr struct {
    std::string_view text;
    char sign; ///< blank: passed over
} marks[] = {
    {"minus", '-'},  {"plus", '+'},   {"times", 'x'},  {"mal", 'x'},    {"degrees", ' '},
    {"Grad", ' '},   {"\u2212", '-'}, {"\u2013", '-'}, {"\u00d7", 'x'}, {"\u00f7", '/'},
    {"\u00b0", ' '}, {"NM", ' '},     {"kt", ' '},     {"min", ' '},    {"ft", ' '},
    {"s", ' '},      {"x", 'x'},      {" ", ' '},      {"+", '+'},      {"-", '-'},
    {"*", 'x'},      {"/", '/'},      {"=", '='},
};

Token numberAt(const std::string& text, std::size_t at) {
    static const std::regex pattern(R"(^(\d+)(?::(\d\d)\b|[.,](\d+))?)");
    std::smatch found;
    std::regex_search(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), found, pattern);
    Token token{.sign = 'n', .begin = at, .end = at + found.str().size()};
    token.decimals = static_cast<int>(found[3].length());
    token.direction = !found[2].matched && !found[3].matched && found[1].length() == 3;
    token.value =
        found[2].matched ? numberOf(found[1]) * 60 + numberOf(found[2]) : valueOf(found.str());
    return token;
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

Token markAt(const std::string& text, std::size_t at) {
    for (const auto& [mark, sign] : marks) {
        const std::size_t end = at + mark.size();
        const bool isWord = isLetter(mark.front());
        if (text.compare(at, mark.size(), mark) == 0 &&
            !(isWord && end < text.size() && isLetter(text[end])))
            return {.sign = sign, .begin = at, .end = end};
    }
    std::size_t end = at + 1;
    while (isLetter(text[at]) && end < text.size() && isLetter(text[end]))
        ++end;
    return {.begin = at, .end = end};
}

std::vector<Token> tokensOf(const std::string& text) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < text.size();) {
        const bool digit = text[at] >= '0' && text[at] <= '9';
        const Token token = digit ? numberAt(text, at) : markAt(text, at);
        if (token.sign != ' ')
            tokens.push_back(token);
        at = token.end;
    }
    return tokens;
}

/// Numbers and operators in turn, beginning and ending with a number; worked out as on paper.
class Sum {
  public:
    void add(const Token& token) {
        const bool number = token.sign == 'n';
        const bool wanted = terms.empty() || pending != 0;
        if (number != wanted) {
            clear();
            if (number)
                add(token);
            return;
        }
        if (!number) {
            pending = token.sign;
            return;
        }
        if (terms.empty())
            begin = token.begin;
        if (pending == 'x')
            terms.back() *= token.value;
        else if (pending == '/')
            terms.back() /= token.value;
        else
            terms.push_back(pending == '-' ? -token.value : token.value);
        operators += pending != 0 ? 1 : 0;
        pending = 0;
    }
    void clear() { *this = {}; }
    [[nodiscard]] bool isOne() const { return operators > 0 && pending == 0; }
    [[nodiscard]] double value() const {
        double all = 0;
        for (const double term : terms)
            all += term;
        return all;
    }
    std::size_t begin = 0;

  private:
    std::vector<double> terms;
    char pending = 0;
    int operators = 0;
};

bool agrees(double value, const Token& result) {
    const double slack = 0.5 * std::pow(10, -result.decimals) + 1e-9;
    const double off = result.value - value;
    return std::abs(off) <= slack ||
           (result.direction && std::abs(std::remainder(off, 360)) <= slack);
}

} // namespace

std::vector<Claim> claimsIn(const std::string& comment) {
    std::vector<Claim> claims;
    for (const Wording& wording : wordings) {
        const std::regex pattern(wording.pattern, std::regex::icase);
        for (auto found = std::sregex_iterator(comment.begin(), comment.end(), pattern);
             found != std::sregex_iterator(); ++found) {
            if (wording.kind == ClaimKind::time && isMeantToCome(found->prefix()))
                continue;
            double value = valueOf((*found)[1]) * wording.unit;
            if (found->size() > 2)
                value += numberOf((*found)[2]);
            claims.push_back({wording.kind, value, found->str()});
        }
    }
    return claims;
}

std::vector<std::string> wrongSums(const std::string& comment) {
    const std::vector<Token> tokens = tokensOf(comment);
    std::vector<std::string> wrong;
    Sum sum;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const bool isResult =
            tokens[i].sign == '=' && i + 1 < tokens.size() && tokens[i + 1].sign == 'n';
        if (isResult && sum.isOne() && !agrees(sum.value(), tokens[i + 1]))
            wrong.push_back(comment.substr(sum.begin, tokens[i + 1].end - sum.begin));
        if (tokens[i].sign == '=' || tokens[i].sign == '|')
            sum.clear();
        else
            sum.add(tokens[i]);
    }
    return wrong;
}

std::vector<double> numbersIn(const std::string& comment) {
    std::vector<double> numbers;
    for (const Token& token : tokensOf(comment))
        if (token.sign == 'n')
            numbers.push_back(token.value);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

} // namespace tarnel
