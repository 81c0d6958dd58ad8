#include "window/quiz/two_lines.h"

#include <QFontMetrics>
#include <QStringList>

#include <algorithm>

namespace tarnel::quiz {

int twoLineWidth(const QFontMetrics& metrics, const QString& text) {
    const auto widthOf = [&metrics](const QStringList& words) {
        return metrics.horizontalAdvance(words.join(QLatin1Char(' ')));
    };
    const QStringList words = text.split(QLatin1Char(' '));
    int narrowest = widthOf(words);
    for (qsizetype i = 1; i < words.size(); ++i)
        narrowest =
            std::min(narrowest, std::max(widthOf(words.first(i)), widthOf(words.sliced(i))));
    return narrowest;
}

} // namespace tarnel::quiz
