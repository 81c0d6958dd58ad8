#include "tracks/track_time.h"

#include "core/number_text.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>

namespace tarnel {

namespace {

namespace chrono = std::chrono;

/// Takes the parts of a text from its front.
class TimeText {
  public:
    explicit TimeText(std::string_view text) : rest(text) {}

    /// A number of exactly so many digits; nothing is taken unless it is `least` to `most`.
    std::optional<int> number(std::size_t digits, int least, int most) {
        const std::string_view taken = rest.substr(0, digits);
        if (taken.size() < digits || !std::ranges::all_of(taken, isDigit))
            return {};
        int value = 0;
        for (const char digit : taken)
            value = 10 * value + (digit - '0');
        if (value < least || value > most)
            return {};
        rest.remove_prefix(digits);
        return value;
    }
    /// One of `marks`, if it stands next; else 0.
    char mark(std::string_view marks) {
        if (rest.empty() || marks.find(rest.front()) == std::string_view::npos)
            return 0;
        const char found = rest.front();
        rest.remove_prefix(1);
        return found;
    }
    /// The part of a second behind its mark, 0 without one.
    double fraction() {
        double value = 0;
        if (mark(".,") == 0)
            return value;
        for (double place = 0.1; !rest.empty() && isDigit(rest.front()); place /= 10) {
            value += place * (rest.front() - '0');
            rest.remove_prefix(1);
        }
        return value;
    }
    [[nodiscard]] bool atEnd() const { return rest.empty(); }

  private:
    static bool isDigit(char c) { return c >= '0' && c <= '9'; }

    std::string_view rest;
};

std::optional<chrono::sys_days> dayFrom(TimeText& text) {
    const auto year = text.number(4, 1, 9999);
    const bool monthFollows = text.mark("-") != 0;
    const auto month = text.number(2, 1, 12);
    const bool dayFollows = text.mark("-") != 0;
    const auto day = text.number(2, 1, 31);
    if (!year || !monthFollows || !month || !dayFollows || !day)
        return {};
    const chrono::year_month_day date{chrono::year(*year),
                                      chrono::month(static_cast<unsigned>(*month)),
                                      chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok())
        return {};
    return chrono::sys_days(date);
}

/// Seconds of "hh:mm".
std::optional<int> minutesFrom(TimeText& text) {
    const auto hours = text.number(2, 0, 23);
    const bool minutesFollow = text.mark(":") != 0;
    const auto minutes = text.number(2, 0, 59);
    if (!hours || !minutesFollow || !minutes)
        return {};
    return 3600 * *hours + 60 * *minutes;
}

/// Seconds that a zone is ahead of UTC.
std::optional<int> zoneFrom(TimeText& text) {
    if (text.atEnd() || text.mark("Zz") != 0)
        return 0;
    const char sign = text.mark("+-");
    const auto ahead = sign == 0 ? std::optional<int>() : minutesFrom(text);
    if (!ahead)
        return {};
    return sign == '-' ? -*ahead : *ahead;
}

} // namespace

std::string utcText(std::int64_t start, double seconds) {
    const chrono::sys_seconds from{chrono::seconds(start)};
    const auto moment = chrono::time_point_cast<chrono::milliseconds>(from) +
                        chrono::milliseconds(std::llround(1000 * seconds));
    const auto midnight = chrono::floor<chrono::days>(moment);
    const chrono::year_month_day date(midnight);
    const chrono::hh_mm_ss time(moment - midnight);
    return zeroPadded(int{date.year()}, 4) + '-' + zeroPadded(unsigned{date.month()}, 2) + '-' +
           zeroPadded(unsigned{date.day()}, 2) + 'T' + zeroPadded(time.hours().count(), 2) + ':' +
           zeroPadded(time.minutes().count(), 2) + ':' + zeroPadded(time.seconds().count(), 2) +
           '.' + zeroPadded(time.subseconds().count(), 3) + 'Z';
}

std::optional<double> secondsOfUtc(std::string_view words) {
    constexpr int leapSecond = 60;
    TimeText text(words);
    const auto day = dayFrom(text);
    const bool timeFollows = text.mark("Tt ") != 0;
    const auto minutes = minutesFrom(text);
    const bool secondsFollow = text.mark(":") != 0;
    const auto seconds = text.number(2, 0, leapSecond);
    if (!day || !timeFollows || !minutes || !secondsFollow || !seconds)
        return {};
    const double fraction = text.fraction();
    const auto zone = zoneFrom(text);
    if (!zone || !text.atEnd())
        return {};
    const auto midnight = chrono::sys_seconds(*day).time_since_epoch().count();
    return static_cast<double>(midnight + *minutes + *seconds - *zone) + fraction;
}

} // namespace tarnel
