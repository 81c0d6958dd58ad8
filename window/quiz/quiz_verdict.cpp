#include "window/quiz/quiz_verdict.h"

#include "look/look.h"
#include "window/widgets/quiz_measures.h"

#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

// In pixels at text scale 1.
constexpr double inset = 8;
constexpr double signSize = 16;
constexpr double partGap = 8;
constexpr double wordShare = 0.85; ///< of the answer's height

} // namespace

QuizVerdict::QuizVerdict(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void QuizVerdict::tell(Kind told, const QString& answer, const QString& behind) {
    kind = told;
    word = behind;
    setText(answer);
    setToolTip(word.isEmpty() ? answer : answer + QStringLiteral(", ") + word);
    updateGeometry();
    update();
}

void QuizVerdict::setCompact(bool small) {
    compact = small;
    updateGeometry();
}

QColor QuizVerdict::colour() const {
    switch (kind) {
    case Kind::right:
        return look::colours().right;
    case Kind::wrong:
        return look::colours().wrong;
    case Kind::solution:
    case Kind::rightSolution:
        return look::colours().solution;
    case Kind::shut:
        break;
    }
    return look::colours().secondaryInk;
}

QFont QuizVerdict::answerFont() const {
    QFont bold = font();
    bold.setBold(kind != Kind::shut);
    return bold;
}

QFont QuizVerdict::wordFont() const {
    QFont small = font();
    small.setPixelSize(qRound(QFontInfo(small).pixelSize() * wordShare));
    return small;
}

int QuizVerdict::widthFor(const QString& answer, const QString& besides) const {
    ensurePolished();
    const double scale = quiz::scaleOf(*this);
    double wide = (2 * inset + signSize + partGap) * scale +
                  QFontMetrics(answerFont()).horizontalAdvance(answer);
    if (!besides.isEmpty())
        wide += partGap * scale + QFontMetrics(wordFont()).horizontalAdvance(besides);
    return qRound(wide + 1);
}

QSize QuizVerdict::sizeHint() const {
    const int height = compact ? quiz::compactHeight : quiz::answerHeight;
    return {widthFor(text(), word), qRound(height * quiz::scaleOf(*this))};
}

QSize QuizVerdict::minimumSizeHint() const {
    return {std::min(sizeHint().width(), widthFor(QStringLiteral("000\u2026"), {})),
            sizeHint().height()};
}

void QuizVerdict::paintSign(QPainter& painter, const QRectF& place) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour());
    const auto at = [&place](double x, double y) {
        return place.topLeft() + QPointF(x * place.width(), y * place.height());
    };
    if (kind == Kind::solution) {
        painter.drawEllipse(place.center(), place.width() / 5, place.width() / 5);
        return;
    }
    painter.drawEllipse(place);
    painter.setPen(QPen(look::markOn(colour()), place.width() / 8, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (kind == Kind::wrong) {
        painter.drawLine(at(0.32, 0.32), at(0.68, 0.68));
        painter.drawLine(at(0.68, 0.32), at(0.32, 0.68));
    } else if (kind == Kind::shut) {
        painter.drawLine(at(0.28, 0.5), at(0.72, 0.5));
    } else {
        painter.drawPolyline(QPolygonF{at(0.27, 0.53), at(0.44, 0.69), at(0.74, 0.34)});
    }
}

void QuizVerdict::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = quiz::scaleOf(*this);
    painter.setPen(QPen(colour(), kind == Kind::shut ? 1 : 1.4));
    painter.setBrush(look::over(look::colours().card, colour(), 0.09));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.7, 0.7, -0.7, -0.7), look::controlRadius,
                            look::controlRadius);
    const double side = signSize * scale;
    const QRectF sign(inset * scale, (height() - side) / 2, side, side);
    paintSign(painter, sign);
    QRectF line(rect());
    line.setLeft(sign.right() + partGap * scale);
    painter.setFont(answerFont());
    painter.setPen(colour());
    const bool whole = width() >= sizeHint().width();
    const QString answer =
        whole ? text()
              : painter.fontMetrics().elidedText(text(), Qt::ElideRight,
                                                 qRound(line.width() - inset * scale));
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, answer);
    if (!whole)
        return;
    line.setLeft(line.left() + painter.fontMetrics().horizontalAdvance(text()) + partGap * scale);
    painter.setFont(wordFont());
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, word);
}

} // namespace tarnel
