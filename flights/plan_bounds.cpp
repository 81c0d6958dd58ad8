#include "flights/plan_bounds.h"

#include "core/number_text.h"
#include "flights/plan_error.h"
#include "persistence/text_encoding.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr int deepestBrackets = 16;
constexpr int longestKey = 8; ///< parts with dots between them

/// Goes through a TOML text, over its comments and the texts in quotes.
class BoundsCheck {
  public:
    BoundsCheck(std::string_view text, const std::string& name) : rest(text), file(name) {}

    void run() {
        while (!rest.empty()) {
            const char c = rest.front();
            if (c == '"' || c == '\'')
                skipQuoted(c);
            else if (c == '#')
                skip(rest.find('\n'));
            else
                take(c);
        }
    }

  private:
    void take(char c) {
        constexpr unsigned char firstBeyondAscii = 0x80;
        if (static_cast<unsigned char>(c) >= firstBeyondAscii)
            refuse("letters a to z, digits, '_' and '-' outside of quotes");
        if (c == '[' || c == '{')
            ++brackets;
        else if (c == ']' || c == '}')
            brackets = std::max(0, brackets - 1);
        dots = c == '.'                                                       ? dots + 1
               : std::string_view("=,[{\n").find(c) != std::string_view::npos ? 0
                                                                              : dots;
        if (brackets > deepestBrackets)
            refuse("at most " + numberText(std::int64_t{deepestBrackets}) +
                   " brackets in one another");
        if (dots >= longestKey)
            refuse("a key of at most " + numberText(std::int64_t{longestKey}) + " parts");
        skip(1);
    }

    /// Over a text in one quote or three, or to the end of the line that lacks the closing one.
    void skipQuoted(char quote) {
        const std::string three(3, quote);
        const bool manyLines = rest.starts_with(three);
        skip(manyLines ? three.size() : 1);
        while (!rest.empty()) {
            if (quote == '"' && rest.front() == '\\') {
                skip(2);
            } else if (manyLines ? rest.starts_with(three) : rest.front() == quote) {
                skip(manyLines ? three.size() : 1);
                break;
            } else if (!manyLines && rest.front() == '\n') {
                break;
            } else {
                skip(1);
            }
        }
        // A text of many lines may end in one or two quotes of its own.
        while (manyLines && rest.starts_with(quote))
            skip(1);
    }

    void skip(std::size_t count) {
        const std::string_view taken = rest.substr(0, count);
        line += static_cast<int>(std::ranges::count(taken, '\n'));
        rest.remove_prefix(taken.size());
    }

    [[noreturn]] void refuse(const std::string& expected) const {
        throw PlanError(file, line, expected);
    }

    std::string_view rest;
    const std::string& file;
    int line = 1;
    int brackets = 0;
    int dots = 0;
};

} // namespace

void checkPlanBounds(std::string_view text, const std::string& file) {
    if (text.size() > largestPlan)
        throw PlanError(file, 0, "at most " + numberText(std::int64_t{largestPlan}) + " bytes");
    BoundsCheck(withoutByteOrderMark(text), file).run();
}

} // namespace tarnel
