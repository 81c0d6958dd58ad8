#include "window/widgets/kept_buttons.h"

#include <QStyleOptionButton>
#include <QStyleOptionToolButton>

namespace tarnel {

namespace {

template <class Option>
ButtonLook lookOf(const Option& option, const QFont& font) {
    return {option.state, option.text, font, option.icon.cacheKey(), option.palette.cacheKey()};
}

} // namespace

template <>
void KeptButton<ChoiceButton>::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    kept.paint(painter, rect(), lookOf(option, font()), [&](QPainter& face) {
        style()->drawControl(QStyle::CE_PushButton, &option, &face, this);
    });
}

template <>
void KeptButton<QToolButton>::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QPainter painter(this);
    kept.paint(painter, rect(), lookOf(option, font()), [&](QPainter& face) {
        style()->drawComplexControl(QStyle::CC_ToolButton, &option, &face, this);
    });
}

} // namespace tarnel
