#pragma once

class QFontMetrics;
class QString;

namespace tarnel::quiz {

/// The least width that holds `text` in two lines, broken between words; its width in one line if
/// it is a single word.
[[nodiscard]] int twoLineWidth(const QFontMetrics& metrics, const QString& text);

} // namespace tarnel::quiz
