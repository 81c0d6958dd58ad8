#include "window/widgets/dark_button.h"

#include "look/panel_look.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

namespace tarnel {

namespace {

constexpr double rounding = 4;

} // namespace

DarkButton::DarkButton(const QString& word, QWidget* parent) : QAbstractButton(parent) {
    setText(word);
    setFocusPolicy(Qt::StrongFocus);
}

void DarkButton::setScale(double moduleScale) {
    scale = moduleScale;
    updateGeometry();
    update();
}

QFont DarkButton::wordFont() const {
    return look::font(look::unitType * scale, QFont::Bold);
}

QSize DarkButton::sizeHint() const {
    constexpr double sideMargin = 10;
    constexpr double height = 24;
    const double wide = QFontMetricsF(wordFont()).horizontalAdvance(text());
    return QSizeF(wide + 2 * sideMargin * scale, height * scale).toSize();
}

void DarkButton::paintEvent(QPaintEvent* /*event*/) {
    constexpr double light = 0.09;
    constexpr double rim = 0.22;
    const QRectF key = rect().toRectF().adjusted(1, 1, -1, -1);
    const double round = rounding * scale;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(look::dimmedOpacity);
    const QColor upper = isDown() ? look::keyBottom : look::keyTop;
    const QColor lower = isDown() ? look::bezelBottom : look::keyBottom;
    painter.setPen(QPen(look::panelRing, 1));
    painter.setBrush(look::downward(key.top(), key.bottom(), upper, lower));
    painter.drawRoundedRect(key, round, round);
    if (underMouse() && isEnabled() && !isDown()) {
        painter.setBrush(look::faded(Qt::white, light));
        painter.drawRoundedRect(key, round, round);
    }
    painter.setPen(QPen(look::faded(Qt::white, isDown() ? rim / 3 : rim), 1));
    painter.drawLine(key.topLeft() + QPointF(round, 1), key.topRight() + QPointF(-round, 1));
    painter.setBrush(Qt::NoBrush);
    if (hasFocus()) {
        painter.setPen(QPen(look::panelFocus, 2));
        painter.drawRoundedRect(key, round, round);
    }
    painter.setFont(wordFont());
    painter.setPen(look::caption);
    painter.drawText(key.translated(0, isDown() ? 1 : 0), Qt::AlignCenter, text());
}

void DarkButton::enterEvent(QEnterEvent* /*event*/) {
    update();
}

void DarkButton::leaveEvent(QEvent* /*event*/) {
    update();
}

} // namespace tarnel
