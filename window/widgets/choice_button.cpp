#include "window/widgets/choice_button.h"

#include "look/look.h"

#include <QButtonGroup>
#include <QFontInfo>
#include <QFontMetrics>

#include <algorithm>

namespace tarnel {

ChoiceButton::ChoiceButton(int padding, QWidget* parent)
    : QPushButton(parent), paddingAtScale1(padding) {
    setCheckable(true);
    setAutoExclusive(true);
}

QSize ChoiceButton::sizeHint() const {
    QFont bold = font();
    bold.setBold(true);
    const double scale = static_cast<double>(QFontInfo(bold).pixelSize()) / look::denseType;
    const int width = QFontMetrics(bold).size(Qt::TextShowMnemonic, text()).width() +
                      static_cast<int>(std::lround(paddingAtScale1 * scale));
    return {std::max(width, look::leastTarget), QPushButton::sizeHint().height()};
}

void showChosen(QAbstractButton& button, bool chosen) {
    QButtonGroup* group = button.group();
    const auto setExclusive = [&](bool exclusive) {
        group ? group->setExclusive(exclusive) : button.setAutoExclusive(exclusive);
    };
    const bool exclusive = group ? group->exclusive() : button.autoExclusive();
    setExclusive(exclusive && chosen);
    button.setChecked(chosen);
    setExclusive(exclusive);
}

} // namespace tarnel
