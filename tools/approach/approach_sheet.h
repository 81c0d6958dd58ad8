#pragma once

#include "approach/approach_plan.h"

#include <QByteArray>
#include <QRectF>

namespace tarnel {

/// All that a sheet shows.
struct ApproachSheet {
    const ApproachSource& source;
    const AuthoredChart& chart;
    const ChartPlane& plane;
    const ApproachPlan& plan;
};

/// The parts of a sheet of A5 paper, tenths of a millimetre.
namespace sheet_parts {
inline constexpr double paperWidth = 1480;
inline constexpr double paperHeight = 2100;
inline constexpr double left = 70;
inline constexpr double width = paperWidth - 2 * left;
inline constexpr QRectF head{left, 60, width, 250};
inline constexpr QRectF plan{left, 310, width, 1020};
inline constexpr QRectF profile{left, 1330, width, 375};
inline constexpr QRectF tables{left, 1705, width, 150};
inline constexpr QRectF notes{left, 1855, width, 105};
inline constexpr QRectF warning{left, 1960, width, 50};
inline constexpr double twips = 20; ///< of the plan to a tenth of a millimetre
} // namespace sheet_parts

/// The sheet as a PDF file.
[[nodiscard]] QByteArray pdfOf(const ApproachSheet& sheet);

} // namespace tarnel
