#pragma once

#include "chart/chart_picture.h"
#include "window/chart/chart_frame.h"

#include <QRectF>
#include <QString>

#include <array>
#include <span>

class QPainter;

namespace tarnel {

/// The localizer's feather: its lines fade with the distance, the half on the right of who flies in
/// is filled.
void paintFeather(QPainter& painter, const ChartFrame& frame, const LocalizerLines& lines);

/// One instrument's radial: course solid, reciprocal dashed and paler, borders thin and dashed.
void paintRadials(QPainter& painter, const ChartFrame& frame, const RadialLines& lines);

/// Letters the course line with `text` where it covers none of the `occupied` areas, at about two
/// thirds of what is visible of it.
void paintRadialLettering(QPainter& painter, const ChartFrame& frame, const Line& course,
                          const QString& text, std::span<const QRectF> occupied);

/// The wind triangle, with what the air and the ground line stand for; the texts keep clear of the
/// `occupied` areas where they can.
struct VectorTexts {
    QString air;
    QString ground;
};
/// Returns what the two texts cover.
std::array<QRectF, 2> paintSpeedVectors(QPainter& painter, const ChartFrame& frame,
                                        const SpeedVectorLines& lines, const VectorTexts& texts,
                                        std::span<const QRectF> occupied);

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
