#pragma once

#include <QWidget>

namespace tarnel {

/// Names the page of the help that tells of `part` and of all that lies in it, unless that has a
/// page of its own.
inline void setHelpPage(QWidget& part, const char* page) {
    part.setProperty("helpPage", QString::fromLatin1(page));
}

/// The page of the part in which `widget` lies; empty where no part has one.
[[nodiscard]] inline QString helpPageOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const QVariant page = widget->property("helpPage");
        if (page.isValid())
            return page.toString();
    }
    return {};
}

} // namespace tarnel
