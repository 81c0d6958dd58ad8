#pragma once

#include "strings/string_table.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace tarnel {

enum class SpanKind { day, week, month };

/// `TimeSpans`: days, weeks (from Monday on) or months of this computer's clock, one after the
/// other.
class TimeSpans {
  public:
    static constexpr int count = 12;

    /// `count` spans, the last of which is that of `day`.
    TimeSpans(SpanKind spanKind, QDate day, const StringTable& table);

    /// Where each begins, and where the last one ends: milliseconds since 1970 UTC.
    [[nodiscard]] std::vector<std::int64_t> bounds() const;
    /// The last one in words: "16 – 22 November".
    [[nodiscard]] QString title() const;
    /// Span `index` on an axis: "22", the number of a week, "Nov".
    [[nodiscard]] QString mark(int index) const;
    /// A day of the span before the last one, or behind it.
    [[nodiscard]] QDate neighbour(int way) const { return start(count - 1 + way); }
    /// Whether the last span has that day.
    [[nodiscard]] bool showsDay(QDate day) const { return startOf(day) == start(count - 1); }

  private:
    [[nodiscard]] QDate startOf(QDate day) const;
    [[nodiscard]] QDate start(int index) const;

    SpanKind kind;
    QDate last; ///< the first day of the last span
    const StringTable& texts;
};

/// The languages of Qt that the program's texts go with.
[[nodiscard]] QLocale localeOf(const StringTable& texts);

/// How long ago a moment was: "today", "3 days ago"; empty for none.
[[nodiscard]] QString ago(std::optional<std::int64_t> moment, std::int64_t now,
                          const StringTable& texts);

} // namespace tarnel
