#include "window/strip/strip_tabs.h"

#include "look/look.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace tarnel {

namespace {

// In pixels at text scale 1.
constexpr int padding = 16; ///< at both sides of the text together
constexpr int tabHeight = 24;

} // namespace

StripTabs::StripTabs(QWidget* parent) : QTabBar(parent) {
    setObjectName(QStringLiteral("Pages"));
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
}

QSize StripTabs::tabSizeHint(int index) const {
    QFont bold = font();
    bold.setBold(true);
    const double scale = static_cast<double>(QFontInfo(bold).pixelSize()) / look::denseType;
    return {QFontMetrics(bold).horizontalAdvance(tabText(index)) + qRound(padding * scale),
            qRound(tabHeight * scale)};
}

} // namespace tarnel
