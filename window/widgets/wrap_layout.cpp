#include "window/widgets/wrap_layout.h"

#include <algorithm>

namespace tarnel {

WrapLayout::WrapLayout(Manner wanted, int gapAcross, int gapDown)
    : manner(wanted), across(gapAcross), down(gapDown) {
    setContentsMargins(0, 0, 0, 0);
}

/// One by one, as a layout within this one takes itself out when it goes.
WrapLayout::~WrapLayout() {
    while (!items.empty())
        delete takeAt(0);
}

void WrapLayout::addItem(QLayoutItem* item) {
    items.emplace_back(item);
}

void WrapLayout::addLayout(QLayout* layout) {
    addChildLayout(layout);
    addItem(layout);
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
    if (manner == Manner::flowing)
        return 0;
    int widest = 1;
    for (const auto& item : items)
        if (!item->isEmpty())
            widest = std::max(widest, item->sizeHint().width());
    const int columns = std::max(1, (width + across) / (widest + across));
    return (width - (columns - 1) * across) / columns;
}

std::vector<WrapLayout::Line> WrapLayout::lines(int width) const {
    const int column = columnWidth(width);
    std::vector<Line> all;
    for (const auto& item : items) {
        if (item->isEmpty())
            continue;
        const QSize wanted = item->sizeHint();
        const int wide = column > 0 ? column : wanted.width();
        if (all.empty() || all.back().width + across + wide > width)
            all.emplace_back();
        else
            all.back().width += across;
        all.back().items.push_back(item.get());
        all.back().width += wide;
        all.back().height = std::max(all.back().height, wanted.height());
    }
    return all;
}

void WrapLayout::place(const Line& line, const QRect& area, int column) const {
    const auto grows = [](const QLayoutItem* item) {
        return item->expandingDirections().testFlag(Qt::Horizontal);
    };
    const auto last = std::find_if(line.items.rbegin(), line.items.rend(), grows);
    int x = area.x();
    for (QLayoutItem* item : line.items) {
        const QSize wanted = item->sizeHint();
        int wide = column > 0 ? column : wanted.width();
        if (column == 0 && last != line.items.rend() && item == *last)
            wide += area.width() - line.width;
        item->setGeometry(
            {x, area.y() + (line.height - wanted.height()) / 2, wide, wanted.height()});
        x += wide + across;
    }
}

int WrapLayout::heightForWidth(int width) const {
    int height = -down;
    for (const Line& line : lines(width))
        height += line.height + down;
    return std::max(0, height);
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
    const int column = columnWidth(area.width());
    int y = area.y();
    for (const Line& line : lines(area.width())) {
        place(line, {area.x(), y, area.width(), line.height}, column);
        y += line.height + down;
    }
}

} // namespace tarnel
