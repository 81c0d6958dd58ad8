#pragma once

#include "chart/chart_picture.h"
#include "chart/map_view.h"
#include "core/recording.h"

namespace tarnel {

/// Paints over all dots of the trace.
void DeleteTrace(ChartPicture& picture);

/// Draws the last thousand samples as dots, thinned by the chart's scale: one in
/// 2000 / `mapScaleTwips`, rounded, at least every one. In the heading-up view dots nearer than 200
/// twips to the upper or left edge are left out.
void DrawTrace2(ChartPicture& picture, MapView& view, const Recording& recording,
                double trueHeading);

/// Draws the whole flight, thinned alike, over the dots that stood there.
void DrawReplayTrace(ChartPicture& picture, MapView& view, const Recording& recording,
                     double trueHeading);

} // namespace tarnel
