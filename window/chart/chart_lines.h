#pragma once

#include "chart/chart_picture.h"
#include "paper/chart_lettering.h"
#include "window/chart/chart_frame.h"

#include <QString>

class QPainter;

namespace tarnel {

/// The room of a text with its plate's padding.
[[nodiscard]] RoomNeeded textRoom(const QFont& font, const QString& text);

/// The localizer's feather: its lines fade with the distance, the half on the right of who flies in
/// is filled.
void paintFeather(QPainter& painter, const ChartFrame& frame, const LocalizerLines& lines);

/// One instrument's radial: course solid, reciprocal dashed and paler, borders thin and dashed.
void paintRadials(QPainter& painter, const ChartFrame& frame, const RadialLines& lines);

/// Letters the course line with `text`.
void paintRadialLettering(QPainter& painter, const ChartFrame& frame, const Line& course,
                          const QString& text, const LineLettering& place);

/// What the air and the ground line stand for.
struct VectorTexts {
    QString air;
    QString ground;
};
/// The wind triangle, with its two texts where `places` has them.
void paintSpeedVectors(QPainter& painter, const ChartFrame& frame, const SpeedVectorLines& lines,
                       const VectorTexts& texts, const ChartLettering& places);

/// The lettering beside the line that a tool draws.
struct ToolTexts {
    QString name;
    QString degrees; ///< the sign behind the direction
    QString unit;    ///< behind the speed
};

/// The line of the heading tool with its two labels on one plate.
void paintHeadingLine(QPainter& painter, const ChartFrame& frame, const HeadingLine& heading,
                      const ToolTexts& texts);

/// The line along which the wind blows while it is drawn, with its head and its labels on one
/// plate.
void paintWindLine(QPainter& painter, const ChartFrame& frame, const WindLine& wind,
                   const ToolTexts& texts);

} // namespace tarnel
