#pragma once

#include <QTabBar>

namespace tarnel {

/// `StripTabs`: the tabs of the strip's pages, the chosen one underlined. Each is always wide
/// enough for its text in bold, as it is shown when it is the chosen one.
class StripTabs : public QTabBar {
    Q_OBJECT

  public:
    explicit StripTabs(QWidget* parent = nullptr);

  protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
};

} // namespace tarnel
