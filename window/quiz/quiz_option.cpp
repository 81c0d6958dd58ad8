#include "window/quiz/quiz_option.h"

#include "look/look.h"
#include "window/quiz/two_lines.h"
#include "window/widgets/plain_caption.h"
#include "window/widgets/quiz_measures.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace tarnel {

namespace {

constexpr double digitShare = 0.77; ///< of the text's height
constexpr double brokenShare = 0.88;
constexpr int digitGap = 6;
constexpr int padding = 7;
constexpr int sparedPadding = 6; ///< where room is short

} // namespace

QuizOption::QuizOption(int number, QWidget* parent)
    : ChoiceButton(2 * padding, parent), digit(QString::number(number)) {
    setProperty("choice", true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFont QuizOption::smallFont(double share) const {
    QFont small = font();
    small.setPixelSize(qRound(QFontInfo(small).pixelSize() * share));
    return small;
}

QString QuizOption::shownText() const {
    return plainCaption(text());
}

/// What digit, gap and padding take of the width.
int QuizOption::digitPart() const {
    return QFontMetrics(smallFont(digitShare)).horizontalAdvance(digit) +
           qRound((digitGap + 2 * padding) * quiz::scaleOf(*this));
}

int QuizOption::lineWidth() const {
    ensurePolished();
    return digitPart() + fontMetrics().horizontalAdvance(shownText());
}

int QuizOption::tightWidth() const {
    return lineWidth() - qRound(sparedPadding * quiz::scaleOf(*this));
}

int QuizOption::brokenWidth() const {
    ensurePolished();
    const double scale = quiz::scaleOf(*this);
    const int broken =
        quiz::twoLineWidth(QFontMetrics(smallFont(brokenShare)), shownText()) + digitPart() + 1;
    return std::min(tightWidth(),
                    broken - (scale > quiz::largeTexts ? qRound(sparedPadding * scale) : 0));
}

QSize QuizOption::sizeHint() const {
    return {lineWidth(), ChoiceButton::sizeHint().height()};
}

QSize QuizOption::minimumSizeHint() const {
    return {brokenWidth(), sizeHint().height()};
}

/// Digit and text stand in the middle as one.
void QuizOption::paintText(QPainter& painter) const {
    const double scale = quiz::scaleOf(*this);
    const bool oneLine = width() >= tightWidth();
    const int wide = oneLine ? lineWidth() : brokenWidth();
    const int left = qMax(4, (width() - wide) / 2 + qRound(padding * scale));
    const QRect line = rect().adjusted(left, 0, 0, 0);
    painter.setPen(isEnabled() ? look::colours().secondaryInk : look::colours().disabledInk);
    painter.setFont(smallFont(digitShare));
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, digit);
    const int textLeft = painter.fontMetrics().horizontalAdvance(digit) + qRound(digitGap * scale);
    painter.setPen(isEnabled() ? look::colours().ink : look::colours().disabledInk);
    painter.setFont(oneLine ? font() : smallFont(brokenShare));
    painter.drawText(line.adjusted(textLeft, 0, oneLine ? 0 : -2, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | (oneLine ? 0 : Qt::TextWordWrap),
                     shownText());
}

void QuizOption::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    paintText(painter);
}

} // namespace tarnel
