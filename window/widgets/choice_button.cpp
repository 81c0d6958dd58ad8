#include "window/widgets/choice_button.h"

#include "look/look.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace tarnel {

ChoiceButton::ChoiceButton(int padding, QWidget* parent)
    : QPushButton(parent), paddingAtScale1(padding) {
    setCheckable(true);
}

QSize ChoiceButton::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const double scale = static_cast<double>(QFontInfo(bold).pixelSize()) / look::denseType;
    const int width = QFontMetrics(bold).horizontalAdvance(text()) +
                      static_cast<int>(std::lround(paddingAtScale1 * scale));
    return {width, QPushButton::sizeHint().height()};
}

} // namespace tarnel
