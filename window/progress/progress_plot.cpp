#include "window/progress/progress_plot.h"

#include "look/look.h"
#include "window/widgets/card.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QBuffer>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double leftHeights = 5.4; ///< heights of text left of the curves
constexpr double dot = 3.2;

std::optional<double> share(const Tally& tally) {
    constexpr double whole = 100;
    return tally.asked > 0 ? std::optional(whole * tally.right / tally.asked) : std::nullopt;
}

std::optional<double> seconds(const Tally& tally) {
    return tally.asked > 0 ? std::optional(static_cast<double>(tally.milliseconds) / 1000)
                           : std::nullopt;
}

/// A round number at or above `value`.
double roundTop(double value) {
    for (const double top : {10.0, 20.0, 40.0, 60.0, 120.0, 300.0, 600.0})
        if (value <= top)
            return top;
    constexpr double step = 1000;
    return std::ceil(value / step) * step;
}

} // namespace

ProgressPlot::ProgressPlot(const StringTable& table, QWidget* parent)
    : QWidget(parent), texts(table) {
    setObjectName(QStringLiteral("ProgressPlot"));
    setSpokenRole(*this, QAccessible::Chart);
}

void ProgressPlot::show(const ExerciseProgress& exercise, const ExerciseProgress& all,
                        const TimeSpans& spans) {
    shown = exercise;
    others = all;
    axis.emplace(spans);
    setSpokenName(*this, spoken());
    update();
}

QByteArray ProgressPlot::picture() {
    constexpr int sharpness = 2;
    QImage image(size() * sharpness, QImage::Format_RGB32);
    image.setDevicePixelRatio(sharpness);
    const look::Colours shownIn = look::colours();
    look::useColours(look::day); // as on paper
    image.fill(look::day.desktop);
    render(&image);
    look::useColours(shownIn);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/// What the curves show, for who can't see them.
QString ProgressPlot::spoken() const {
    QString told = QString::fromStdString(exerciseName(shown->exercise, texts));
    for (int span = 0; span < TimeSpans::count; ++span) {
        const Tally& tally = shown->history[static_cast<std::size_t>(span)];
        if (const auto percent = tally.percent())
            told += QStringLiteral("; %1: %2 %, ").arg(axis->mark(span)).arg(*percent) +
                    textOf(texts, Text::seconds)
                        .arg(std::lround(static_cast<double>(tally.milliseconds) / 1000));
    }
    return told;
}

void ProgressPlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
    if (!shown)
        return;
    const double line = fontMetrics().height();
    const double left = cardInset + leftHeights * line;
    const QRectF inner(left, cardInset + 2 * line, width() - left - 3 * line,
                       height() - 2.0 * cardInset - 3.4 * line);
    constexpr double shareOfRight = 0.56;
    const double gap = line;
    const Area right{
        {inner.left(), inner.top(), inner.width(), (inner.height() - gap) * shareOfRight}, 100};
    double slowest = 1;
    for (const ExerciseProgress* each :
         std::initializer_list<const ExerciseProgress*>{&*shown, &others})
        for (const Tally& tally : each->history)
            slowest = std::max(slowest, seconds(tally).value_or(0));
    const double top = right.place.bottom() + gap;
    const Area time{{inner.left(), top, inner.width(), inner.bottom() - top}, roundTop(slowest)};
    paintHeader(painter);
    paintScale(painter, right, Text::csvRight, Text::percentSign, 2);
    paintScale(painter, time, Text::timeTaken, Text::secondsSign, 2);
    paintAsked(painter, right);
    paintCurves(painter, right, share);
    paintCurves(painter, time, seconds);
    paintMarks(painter, time);
}

void ProgressPlot::paintHeader(QPainter& painter) const {
    QFont title = font();
    title.setBold(true);
    title.setPixelSize(font().pixelSize() + 2);
    painter.setFont(title);
    painter.setPen(look::colours().ink);
    const double line = QFontMetricsF(title).height();
    painter.drawText(QPointF(cardInset, cardInset + line * 0.8),
                     QString::fromStdString(exerciseName(shown->exercise, texts)));
    painter.setFont(font());
    const QFontMetricsF metrics(font());
    double end = width() - cardInset;
    const double middle = cardInset + line * 0.55;
    const auto entry = [&](Text words, const QPen& pen, bool bar) {
        constexpr double sample = 22;
        const QString text = textOf(texts, words);
        end -= metrics.horizontalAdvance(text);
        painter.setPen(look::colours().ink);
        painter.drawText(QPointF(end, cardInset + line * 0.8), text);
        end -= sample + 6;
        if (bar)
            painter.fillRect(QRectF(end + sample - 10, middle - 6, 9, 12),
                             look::colours().askedBar.darker(108));
        painter.setPen(pen);
        if (!bar)
            painter.drawLine(QPointF(end, middle), QPointF(end + sample, middle));
        end -= 2 * 8;
    };
    entry(Text::askedMany, {}, true);
    entry(Text::allExercises, QPen(look::colours().allExercises, 1.2, Qt::DashLine), false);
    entry(Text::thisExercise, QPen(look::colours().curve, 2), false);
}

double ProgressPlot::across(const Area& area, int span) const {
    return area.place.left() + area.place.width() * (span + 0.5) / TimeSpans::count;
}

void ProgressPlot::paintScale(QPainter& painter, const Area& area, Text caption, Text unit,
                              int lines) const {
    const QFontMetricsF metrics(font());
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(look::colours().ink);
    painter.drawText(QPointF(cardInset, area.place.top() + metrics.ascent() / 2),
                     textOf(texts, caption));
    painter.setFont(font());
    painter.setPen(look::colours().secondaryInk);
    painter.drawText(QPointF(cardInset, area.place.top() + metrics.height() * 1.4),
                     textOf(texts, unit));
    for (int i = 0; i <= lines; ++i) {
        const double y = area.place.bottom() - area.place.height() * i / lines;
        painter.setPen(i == 0 ? look::colours().line : look::colours().hairline);
        painter.drawLine(QPointF(area.place.left(), y), QPointF(area.place.right(), y));
        painter.setPen(look::colours().secondaryInk);
        const QString number = QString::number(std::lround(area.top * i / lines));
        painter.drawText(QPointF(area.place.left() - 8 - metrics.horizontalAdvance(number),
                                 y + metrics.ascent() / 2 - 1),
                         number);
    }
}

/// The tallest bar takes a quarter of the height: the curves matter more.
void ProgressPlot::paintAsked(QPainter& painter, const Area& area) const {
    constexpr double tallest = 0.25;
    constexpr double barWidth = 18;
    const int most = std::ranges::max(shown->history, {}, &Tally::asked).asked;
    if (most == 0)
        return;
    const QFontMetricsF metrics(font());
    for (int span = 0; span < TimeSpans::count; ++span) {
        const int asked = shown->history[static_cast<std::size_t>(span)].asked;
        if (asked == 0)
            continue;
        const double height = area.place.height() * tallest * asked / most;
        const QRectF bar(across(area, span) - barWidth / 2, area.place.bottom() - height, barWidth,
                         height);
        painter.fillRect(bar, look::colours().askedBar);
        const QString number = QString::number(asked);
        painter.setPen(look::colours().secondaryInk);
        painter.drawText(
            QPointF(bar.center().x() - metrics.horizontalAdvance(number) / 2,
                    height > metrics.height() ? area.place.bottom() - 3 : bar.top() - 2),
            number);
    }
}

/// A span without answers is a gap in time, no fall to nothing: the line goes on over it.
void ProgressPlot::paintCurves(QPainter& painter, const Area& area, Value value) const {
    const auto pointsOf = [&](const ExerciseProgress& exercise) {
        QPolygonF points;
        for (int span = 0; span < TimeSpans::count; ++span)
            if (const auto found = value(exercise.history[static_cast<std::size_t>(span)]))
                points << QPointF(across(area, span),
                                  area.place.bottom() -
                                      area.place.height() * std::min(1.0, *found / area.top));
        return points;
    };
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look::colours().allExercises, 1.2, Qt::DashLine));
    painter.drawPolyline(pointsOf(others));
    const QPolygonF own = pointsOf(*shown);
    painter.setPen(QPen(look::colours().curve, 2));
    painter.drawPolyline(own);
    for (const QPointF& point : own) {
        const bool isLast = point == own.back();
        painter.setBrush(isLast ? look::colours().curve : look::colours().card);
        painter.drawEllipse(point, isLast ? dot + 1.5 : dot, isLast ? dot + 1.5 : dot);
    }
    const auto now = value(shown->now());
    if (!now)
        return;
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(own.back() + QPointF(10, QFontMetricsF(bold).ascent() / 2),
                     QString::number(std::lround(*now)));
    painter.setFont(font());
}

void ProgressPlot::paintMarks(QPainter& painter, const Area& area) const {
    for (int span = 0; span < TimeSpans::count; ++span) {
        QFont marked = font();
        marked.setBold(span == TimeSpans::count - 1);
        const QFontMetricsF metrics(marked);
        painter.setFont(marked);
        painter.setPen(marked.bold() ? look::colours().ink : look::colours().secondaryInk);
        const QString mark = axis->mark(span);
        painter.drawText(QPointF(across(area, span) - metrics.horizontalAdvance(mark) / 2,
                                 area.place.bottom() + metrics.height() * 1.2),
                         mark);
    }
    painter.setFont(font());
}

} // namespace tarnel
