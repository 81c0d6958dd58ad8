#include "window/quiz_verdict.h"

#include "window/look.h"
#include "window/quiz_measures.h"

#include <QPainter>

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
}

void QuizVerdict::tell(Verdict judged, bool isSolution, const QString& answer,
                       const QString& besides) {
    verdict = judged;
    solution = isSolution;
    word = besides;
    setText(answer);
    updateGeometry();
    update();
}

QColor QuizVerdict::verdictColour() const {
    switch (verdict) {
    case Verdict::right:
        return look::right;
    case Verdict::wrong:
        return look::wrong;
    case Verdict::notYet:
        break;
    }
    return look::secondaryInk;
}

QFont QuizVerdict::answerFont() const {
    QFont bold = font();
    bold.setBold(true);
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
    return {widthFor(text(), word), qRound(quiz::answerHeight * quiz::scaleOf(*this))};
}

/// A tick, a cross, or a dot where nothing was answered.
void QuizVerdict::paintSign(QPainter& painter, const QRectF& place) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(verdictColour());
    const auto at = [&place](double x, double y) {
        return place.topLeft() + QPointF(x * place.width(), y * place.height());
    };
    if (verdict == Verdict::notYet) {
        painter.drawEllipse(place.center(), place.width() / 5, place.width() / 5);
        return;
    }
    painter.drawEllipse(place);
    painter.setPen(QPen(Qt::white, place.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (verdict == Verdict::right) {
        painter.drawPolyline(QPolygonF{at(0.27, 0.53), at(0.44, 0.69), at(0.74, 0.34)});
        return;
    }
    painter.drawLine(at(0.32, 0.32), at(0.68, 0.68));
    painter.drawLine(at(0.68, 0.32), at(0.32, 0.68));
}

void QuizVerdict::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = quiz::scaleOf(*this);
    const QColor told = solution ? look::secondaryInk : verdictColour();
    painter.setPen(QPen(told, solution ? 1 : 1.4));
    painter.setBrush(look::onPaper(told, solution ? 0.06 : 0.09));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.7, 0.7, -0.7, -0.7), look::controlRadius,
                            look::controlRadius);
    const double side = signSize * scale;
    const QRectF sign(inset * scale, (height() - side) / 2, side, side);
    paintSign(painter, sign);
    QRectF line(rect());
    line.setLeft(sign.right() + partGap * scale);
    painter.setFont(answerFont());
    painter.setPen(solution ? look::ink : told);
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, text());
    line.setLeft(line.left() + painter.fontMetrics().horizontalAdvance(text()) + partGap * scale);
    painter.setFont(wordFont());
    painter.setPen(verdictColour());
    painter.drawText(line, Qt::AlignVCenter | Qt::AlignLeft, word);
}

} // namespace tarnel
