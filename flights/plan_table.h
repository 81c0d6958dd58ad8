#pragma once

#include "flights/range.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// `PlanTable`: one table of a TOML file, which it reads key by key. A value that is not as asked
/// for is a PlanError with its line.
///
/// Keys must be literals: the table remembers which ones were asked for.
class PlanTable {
  public:
    /// The outermost table. `file` names the text in messages.
    static PlanTable parse(std::string_view text, const std::string& file);

    // The value of a key; nothing if the table lacks it.
    std::optional<double> number(std::string_view key, const Range<double>& range);
    std::optional<std::int16_t> whole(std::string_view key, const Range<std::int64_t>& range);
    /// In the range, or 0.
    std::optional<std::int16_t> wholeOrZero(std::string_view key, const Range<std::int64_t>& range);
    std::optional<bool> truth(std::string_view key);
    /// A text that `good` accepts; `expected` says in words what that is.
    std::optional<std::string> text(std::string_view key,
                                    const std::function<bool(const std::string&)>& good,
                                    const std::string& expected);

    /// A key that may stand there and is not read now.
    void know(std::string_view key) { known.push_back(key); }

    /// The table under a key, an empty one if there is none.
    PlanTable part(std::string_view key);
    /// All tables of the array under a key.
    std::vector<PlanTable> parts(std::string_view key);
    /// Whether there is an array of tables under a key, or an empty array.
    [[nodiscard]] bool hasTables(std::string_view key) const;

    /// The line where the table begins, from 1.
    [[nodiscard]] int line() const;
    /// The line of a key's value; 0 if the table lacks the key.
    [[nodiscard]] int lineOf(std::string_view key) const;

    /// Refuses a key that was never asked for. To be called when all have been.
    void refuseOtherKeys() const;
    /// Refuses a table without `key`.
    void need(std::string_view key) const;
    /// Refuses one of two keys without the other.
    void needBothOrNone(std::string_view first, std::string_view second) const;
    /// Refuses the table as a whole.
    [[noreturn]] void refuse(const std::string& expected) const;

  private:
    struct Source;
    explicit PlanTable(std::shared_ptr<const Source> from) : source(std::move(from)) {}

    std::optional<std::int16_t> wholeThat(std::string_view key,
                                          const std::function<bool(std::int64_t)>& fits,
                                          const std::string& expected);

    std::shared_ptr<const Source> source;
    std::vector<std::string_view> known;
};

} // namespace tarnel
