#include "window/bold_text.h"

#include <QAbstractButton>
#include <QFontMetrics>

namespace tarnel {

int boldTextWidth(const QAbstractButton& button) {
    QFont bold = button.font();
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(button.text());
}

} // namespace tarnel
