#include "window/widgets/wrap_layout.h"

#include <algorithm>

namespace tarnel {

WrapLayout::WrapLayout(Manner wanted, int gapAcross, int gapDown)
    : manner(wanted), across(gapAcross), down(gapDown) {
    setContentsMargins(0, 0, 0, 0);
}

void WrapLayout::addItem(QLayoutItem* item) {
    items.emplace_back(item);
}

QLayoutItem* WrapLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* WrapLayout::takeAt(int index) {
    if (index < 0 || index >= count())
        return nullptr;
    const auto at = items.begin() + index;
    QLayoutItem* taken = at->release();
    items.erase(at);
    return taken;
}

int WrapLayout::columnWidth(int width) const {
    int widest = 1;
    for (const auto& item : items)
        if (!item->isEmpty())
            widest = std::max(widest, item->sizeHint().width());
    const int columns = std::max(1, (width + across) / (widest + across));
    return (width - (columns - 1) * across) / columns;
}

int WrapLayout::layOut(const QRect& area, bool place) const {
    const int column = manner == Manner::inColumns ? columnWidth(area.width()) : 0;
    int x = area.x();
    int y = area.y();
    int line = 0;
    for (const auto& item : items) {
        if (item->isEmpty())
            continue;
        const QSize wanted = item->sizeHint();
        const QSize size(column > 0 ? column : wanted.width(), wanted.height());
        if (x > area.x() && x + size.width() > area.x() + area.width()) {
            x = area.x();
            y += line + down;
            line = 0;
        }
        if (place)
            item->setGeometry({QPoint(x, y), size});
        x += size.width() + across;
        line = std::max(line, size.height());
    }
    return y + line - area.y();
}

int WrapLayout::heightForWidth(int width) const {
    return layOut({0, 0, width, 0}, false);
}

QSize WrapLayout::minimumSize() const {
    QSize least;
    for (const auto& item : items)
        least = least.expandedTo(item->minimumSize());
    return least;
}

QSize WrapLayout::sizeHint() const {
    QSize whole;
    for (const auto& item : items) {
        const QSize wanted = item->sizeHint();
        whole = {whole.width() + wanted.width() + across,
                 std::max(whole.height(), wanted.height())};
    }
    return whole;
}

void WrapLayout::setGeometry(const QRect& area) {
    QLayout::setGeometry(area);
    layOut(area, true);
}

} // namespace tarnel
