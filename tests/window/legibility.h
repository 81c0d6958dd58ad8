#pragma once

#include <QAbstractButton>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollArea>
#include <QTabBar>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tarnel {

inline bool isControl(const QWidget& widget) {
    return widget.focusPolicy() != Qt::NoFocus || qobject_cast<const QLabel*>(&widget);
}

/// Whether a widget lies on something that scrolls to it.
inline bool scrolls(const QWidget& widget) {
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget())
        if (qobject_cast<const QScrollArea*>(parent))
            return true;
    return false;
}

/// No visible control leaves its parents or lies over another.
inline void expectRoomForAll(const QWidget& area, const std::string& where) {
    std::vector<QWidget*> controls;
    for (auto* widget : area.findChildren<QWidget*>())
        if (widget->isVisible() && isControl(*widget) &&
            widget->parentWidget()->focusPolicy() == Qt::NoFocus)
            controls.push_back(widget);
    const auto placeOf = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&area, QPoint()), widget->size());
    };
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const QRect place = placeOf(controls[i]);
        const std::string name = controls[i]->objectName().toStdString() + " " + where;
        for (const QWidget* parent = controls[i]->parentWidget(); parent != &area;
             parent = parent->parentWidget()) {
            if (qobject_cast<const QScrollArea*>(parent->parentWidget()))
                break; // what lies beyond the view is scrolled to
            EXPECT_TRUE(placeOf(parent).contains(place)) << name;
        }
        EXPECT_TRUE(scrolls(*controls[i]) || area.rect().contains(place)) << name;
        for (std::size_t k = i + 1; k < controls.size(); ++k)
            EXPECT_FALSE(scrolls(*controls[i]) == scrolls(*controls[k]) &&
                         placeOf(controls[k]).intersects(place))
                << name << " and " << controls[k]->objectName().toStdString();
    }
}

/// Nothing is cut off but what ends in dots and has a tool tip.
inline void expectTextsInFull(const QWidget& area, const std::string& where) {
    for (auto* button : area.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty() || button->inherits("QToolButton"))
            continue;
        const int needed = // some put what is too long into two lines
            std::min(QFontMetrics(button->font()).horizontalAdvance(button->text()),
                     button->minimumSizeHint().width());
        EXPECT_GE(button->width(), needed) << qPrintable(button->text()) << where;
    }
    for (auto* tabs : area.findChildren<QTabBar*>()) {
        QFont bold = tabs->font();
        bold.setBold(true);
        for (int i = 0; i < tabs->count() && tabs->isVisible(); ++i)
            EXPECT_TRUE(tabs->rect().contains(tabs->tabRect(i)) &&
                        tabs->tabRect(i).width() >
                            QFontMetrics(bold).horizontalAdvance(tabs->tabText(i)))
                << qPrintable(tabs->tabText(i)) << where;
    }
    for (auto* label : area.findChildren<QLabel*>())
        if (label->isVisible() && !label->wordWrap() && label->toolTip() != label->text()) {
            EXPECT_GE(label->width(), label->minimumSizeHint().width())
                << qPrintable(label->text()) << where;
        }
}

} // namespace tarnel
