#include "window/progress/time_spans.h"

#include "window/widgets/text_of.h"

#include <QDateTime>

namespace tarnel {

namespace {

constexpr qint64 daysInWeek = 7;

} // namespace

TimeSpans::TimeSpans(SpanKind spanKind, QDate day, const StringTable& table)
    : kind(spanKind), last(startOf(day)), texts(table) {}

QDate TimeSpans::startOf(QDate day) const {
    switch (kind) {
    case SpanKind::week:
        return day.addDays(1 - day.dayOfWeek());
    case SpanKind::month:
        return day.addDays(1 - day.day());
    case SpanKind::day:
        break;
    }
    return day;
}

QDate TimeSpans::start(int index) const {
    const int away = index - (count - 1);
    switch (kind) {
    case SpanKind::week:
        return last.addDays(daysInWeek * away);
    case SpanKind::month:
        return last.addMonths(away);
    case SpanKind::day:
        break;
    }
    return last.addDays(away);
}

std::vector<std::int64_t> TimeSpans::bounds() const {
    std::vector<std::int64_t> all;
    for (int index = 0; index <= count; ++index)
        all.push_back(start(index).startOfDay().toMSecsSinceEpoch());
    return all;
}

QString TimeSpans::title() const {
    const QLocale locale = localeOf(texts);
    if (kind == SpanKind::month)
        return locale.toString(last, QStringLiteral("MMMM yyyy"));
    const QString longDay = textOf(texts, Text::dayAndMonth);
    if (kind == SpanKind::day)
        return locale.toString(last, longDay);
    const QDate end = last.addDays(daysInWeek - 1);
    const QString first = locale.toString(
        last, end.month() == last.month() ? textOf(texts, Text::dayOfMonth) : longDay);
    return first + QStringLiteral(" – ") + locale.toString(end, longDay);
}

QString TimeSpans::mark(int index) const {
    const QDate day = start(index);
    const QLocale locale = localeOf(texts);
    switch (kind) {
    case SpanKind::week:
        return QString::number(day.weekNumber());
    case SpanKind::month:
        return locale.standaloneMonthName(day.month(), QLocale::ShortFormat).remove(u'.');
    case SpanKind::day:
        break;
    }
    return locale.toString(day, textOf(texts, Text::dayOfMonth));
}

QLocale localeOf(const StringTable& texts) {
    return texts.isGerman() ? QLocale(QLocale::German, QLocale::Germany)
                            : QLocale(QLocale::English, QLocale::UnitedKingdom);
}

QString ago(std::optional<std::int64_t> moment, std::int64_t now, const StringTable& texts) {
    if (!moment)
        return {};
    const auto dayOf = [](std::int64_t when) {
        return QDateTime::fromMSecsSinceEpoch(when).date();
    };
    const qint64 days = dayOf(*moment).daysTo(dayOf(now));
    if (days <= 0)
        return textOf(texts, Text::today);
    if (days == 1)
        return textOf(texts, Text::yesterday);
    if (days < 2 * daysInWeek)
        return textOf(texts, Text::daysAgo).arg(days);
    return textOf(texts, Text::weeksAgo).arg(days / daysInWeek);
}

} // namespace tarnel
