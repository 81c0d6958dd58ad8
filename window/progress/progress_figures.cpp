#include "window/progress/progress_figures.h"

#include "window/widgets/card.h"
#include "window/widgets/text_of.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace tarnel {

namespace {

constexpr std::int64_t millisecondsASecond = 1000;

std::int64_t inSeconds(const Tally& tally) {
    return (tally.milliseconds + millisecondsASecond / 2) / millisecondsASecond;
}

} // namespace

bool isFaultless(const LoggedFlight& flight) {
    return std::ranges::none_of(
        flight.findings, [](const Finding& finding) { return finding.verdict == Verdict::wrong; });
}

ProgressFigures::ProgressFigures(const StringTable& table, QWidget* parent)
    : QWidget(parent), texts(table) {
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(cardInset, 8, cardInset, 8);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(0);
    right = makeFigure(*grid, 0);
    time = makeFigure(*grid, 1);
    flown = makeFigure(*grid, 2);
}

ProgressFigures::Figure ProgressFigures::makeFigure(QGridLayout& grid, int column) {
    const auto label = [this](const char* property) {
        auto* made = new QLabel(this);
        made->setTextFormat(Qt::PlainText);
        made->setProperty(property, true);
        return made;
    };
    const Figure figure{label("figure"), label("change"), label("secondary")};
    grid.addWidget(figure.value, 0, 2 * column);
    grid.addWidget(figure.change, 0, 2 * column + 1, Qt::AlignLeft | Qt::AlignVCenter);
    grid.addWidget(figure.below, 1, 2 * column, 1, 2);
    grid.setColumnStretch(2 * column + 1, 1);
    return figure;
}

void ProgressFigures::showChange(QLabel& label, std::int64_t now,
                                 std::optional<std::int64_t> before, bool moreIsBetter,
                                 const QString& unit) const {
    const std::int64_t difference = before ? now - *before : 0;
    label.setText(
        difference == 0
            ? QString()
            : textOf(texts, difference > 0 ? Text::upFrom : Text::downFrom).arg(unit.arg(*before)));
    const bool better = (difference > 0) == moreIsBetter;
    label.setProperty("better", better);
    label.style()->unpolish(&label);
    label.style()->polish(&label);
}

void ProgressFigures::show(const ExerciseProgress& all, const std::vector<LoggedFlight>& flights) {
    const Tally& now = all.now();
    const Tally& before = all.before();
    const QString none = QStringLiteral("–");
    const QString percentUnit = QStringLiteral("%1 %");
    const QString secondUnit = textOf(texts, Text::seconds);
    right.value->setText(now.percent() ? percentUnit.arg(*now.percent()) : none);
    showChange(*right.change, now.percent().value_or(0),
               now.percent() ? before.percent() : std::nullopt, true, percentUnit);
    right.below->setText(textOf(texts, Text::rightOfMany).arg(now.right).arg(now.asked));
    time.value->setText(now.asked > 0 ? secondUnit.arg(inSeconds(now)) : none);
    showChange(*time.change, inSeconds(now),
               now.asked > 0 && before.asked > 0 ? std::optional(inSeconds(before)) : std::nullopt,
               false, secondUnit);
    time.below->setText(textOf(texts, Text::perAnswer));
    flown.value->setText(QString::number(flights.size()));
    flown.below->setText(
        textOf(texts, Text::flightsJudged).arg(std::ranges::count_if(flights, isFaultless)));
}

void ProgressFigures::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
}

} // namespace tarnel
