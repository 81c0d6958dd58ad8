#include "window/quiz_option.h"

#include "window/look.h"
#include "window/quiz_measures.h"

#include <QPainter>

namespace tarnel {

namespace {

constexpr double digitShare = 0.77; ///< of the text's height
constexpr int digitGap = 6;
constexpr int padding = 7;

} // namespace

QuizOption::QuizOption(int number, QWidget* parent)
    : QPushButton(parent), digit(QString::number(number)) {
    setProperty("choice", true);
}

QFont QuizOption::digitFont() const {
    QFont small = font();
    small.setPixelSize(qRound(QFontInfo(small).pixelSize() * digitShare));
    return small;
}

int QuizOption::textWidth() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()).width();
}

int QuizOption::neededWidth() const {
    ensurePolished();
    const int digitWidth = QFontMetrics(digitFont()).horizontalAdvance(digit);
    return textWidth() + qRound((digitGap + 2 * padding) * quiz::scaleOf(*this)) + digitWidth;
}

void QuizOption::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool active = isEnabled() && (underMouse() || hasFocus());
    const double edge = hasFocus() ? 2 : 1;
    painter.setPen(QPen(active ? look::accent : isEnabled() ? look::line : look::hairline, edge));
    painter.setBrush(!isEnabled() ? look::card
                     : isDown()   ? look::hairline
                     : hasFocus() ? look::onPaper(look::accent, 0.08)
                                  : look::paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2),
                            look::controlRadius, look::controlRadius);
    // Digit and text stand in the middle as one.
    const int left = (width() - neededWidth()) / 2 + qRound(padding * quiz::scaleOf(*this));
    const QRect line = rect().adjusted(qMax(left, 2), 0, 0, 0);
    painter.setPen(isEnabled() ? look::secondaryInk : look::unit);
    painter.setFont(digitFont());
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, digit);
    const int textLeft =
        painter.fontMetrics().horizontalAdvance(digit) + qRound(digitGap * quiz::scaleOf(*this));
    painter.setPen(isEnabled() ? look::ink : look::unit);
    painter.setFont(font());
    painter.drawText(line.adjusted(textLeft, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
}

} // namespace tarnel
