#pragma once

#include "look/look.h"

#include <QPainter>
#include <QString>

#include <string>

/// What all parts of an approach chart's sheet are drawn with. Lengths are tenths of a millimetre.
namespace tarnel::ink {

inline constexpr double hair = 1.5;
inline constexpr double thin = 2.5;
inline constexpr double medium = 4;
inline constexpr double track = 7;

// Heights of type.
inline constexpr double tiny = 19;
inline constexpr double small = 22;
inline constexpr double body = 24;
inline constexpr double value = 33;
inline constexpr double title = 50;

[[nodiscard]] QFont type(double height, bool bold = false);
[[nodiscard]] QPen pen(double width, QColor colour = look::day.ink);
[[nodiscard]] QPen dashed(double width, QColor colour = look::day.ink);

/// One line or, with `Qt::TextWordWrap`, more; in ink unless another colour is given.
void text(QPainter& painter, const QRectF& place, int alignment, const QString& words,
          const QFont& font, QColor colour = look::day.ink);

[[nodiscard]] QString qt(const std::string& words);
/// "2000"
[[nodiscard]] QString feet(double altitude);

/// A caption above a value.
void cell(QPainter& painter, const QRectF& place, const QString& caption, const QString& words);

} // namespace tarnel::ink
