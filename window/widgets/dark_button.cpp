#include "window/widgets/dark_button.h"

#include "look/panel_look.h"

#include <QFontMetricsF>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace tarnel {

DarkButton::DarkButton(const QString& word, QWidget* parent) : QAbstractButton(parent) {
    setText(word);
    setProperty("dark", true);
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
    QStylePainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    option.text = text();
    painter.setFont(wordFont());
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace tarnel
