#include "window/widgets/dark_list.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr double arrowWidth = 8;
constexpr double inset = 8;

} // namespace

QSize DarkList::sizeHint() const {
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = std::max(widest, fontMetrics().horizontalAdvance(itemText(i)));
    return {widest + static_cast<int>(3 * inset + arrowWidth) - 4, fontMetrics().height() + 10};
}

} // namespace tarnel
