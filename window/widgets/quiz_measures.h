#pragma once

#include "look/look.h"

#include <QFontInfo>
#include <QWidget>

/// The measures of the quiz, in pixels at text scale 1.
namespace tarnel::quiz {

inline constexpr int answerHeight = 30;
inline constexpr int answerGap = 5;       ///< between the answers of a row
inline constexpr int verdictMargins = 48; ///< of a verdict, what is neither answer nor word
inline constexpr int rowGap = 3;          ///< between rows
inline constexpr int compactHeight = 22;  ///< of a row that can't be answered, beside a replay
inline constexpr int compactGap = 3;

inline constexpr double largeTexts = 1.25; ///< the text scale from which parts move together

/// The text scale of a widget that the style sheet has dressed.
inline double scaleOf(const QWidget& widget) {
    return QFontInfo(widget.font()).pixelSize() / static_cast<double>(look::bodyType);
}

} // namespace tarnel::quiz
