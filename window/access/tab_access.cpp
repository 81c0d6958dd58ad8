#include "window/access/tab_access.h"

#include "window/widgets/plain_caption.h"

#include <QTabBar>

namespace tarnel {

namespace {

class Tab : public Part {
  public:
    Tab(QTabBar& bar, int tab) : Part(bar), tabs(bar), index(tab) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PageTab; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State own = Part::state();
        const bool chosen = tabs.currentIndex() == index;
        own.selectable = own.focusable = true;
        own.selected = chosen;
        own.focused = chosen && tabs.hasFocus();
        own.disabled = own.disabled || !tabs.isTabEnabled(index);
        own.invisible = own.invisible || !tabs.isTabVisible(index);
        return own;
    }

  protected:
    [[nodiscard]] QString name() const override { return plainCaption(tabs.tabText(index)); }
    [[nodiscard]] QString description() const override { return tabs.tabToolTip(index); }
    [[nodiscard]] QRect area() const override { return tabs.tabRect(index); }
    [[nodiscard]] std::function<void()> press() const override {
        return [&bar = tabs, tab = index] {
            if (bar.isTabEnabled(tab) && bar.isTabVisible(tab))
                bar.setCurrentIndex(tab);
        };
    }

  private:
    QTabBar& tabs;
    int index;
};

} // namespace

TabAccess::TabAccess(QTabBar& bar) : Whole(&bar, QAccessible::PageTabList), tabs(bar) {}

int TabAccess::partCount() const {
    return tabs.count();
}

Part* TabAccess::makePart(int index) const {
    return new Tab(tabs, index);
}

} // namespace tarnel
