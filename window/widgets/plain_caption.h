#pragma once

#include <QString>

namespace tarnel {

/// A caption without the ampersands that mark its key.
[[nodiscard]] inline QString plainCaption(const QString& caption) {
    QString plain;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size())
            ++i;
        plain += caption[i];
    }
    return plain;
}

} // namespace tarnel
