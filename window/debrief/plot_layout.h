#pragma once

#include "debrief/debrief.h"

#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <cstddef>
#include <optional>
#include <vector>

namespace tarnel {

/// What is plotted over time: a flight, those before it, and what of it is looked at.
struct PlotScene {
    const Debrief* own = nullptr; ///< nothing is plotted without one
    int samples = 0;              ///< of it
    double startSeconds = 0;      ///< the flight's time at its first sample
    std::vector<const Debrief*> earlier;
    std::optional<SampleSpan> chosen;
};

/// A stretch of a curve, in pixels. One that would leave its row is to be clipped to it.
using PlotCurves = std::vector<QPolygonF>;

/// A value plotted over time.
struct PlotRow {
    const Series* series = nullptr;
    QRectF frame; ///< of the curves
    QRectF caption;
    QRectF readout;
    double low = 0;  ///< the value at the lower edge
    double high = 1; ///< the value at the upper one
    std::vector<double> labels;
    std::vector<QRectF> bands; ///< between the limits, where it is judged
    PlotCurves own;
    PlotCurves outside;              ///< the parts of it that leave a band
    std::vector<PlotCurves> earlier; ///< by flight

    [[nodiscard]] double yAt(double value) const;
    /// The value at a sample; none where it means nothing.
    [[nodiscard]] std::optional<double> valueAt(int sample) const;
};

/// Where the parts of a plot over time stand, in pixels.
struct PlotLayout {
    QRectF phases;             ///< the band of all phases
    std::vector<QRectF> cells; ///< one a phase
    std::vector<PlotRow> rows;
    QRectF axis; ///< below the rows
    /// A number on the axis.
    struct Minute {
        double x = 0;
        double minutes = 0;
    };
    std::vector<Minute> minutes;
    std::optional<QRectF> chosen; ///< what is looked at, over phases and rows
    int samples = 0;
    bool narrow = false; ///< names stand on the rows: beside them is room for numbers alone

    /// The middle of a sample, from 0.
    [[nodiscard]] double xAt(double sample) const;
    /// The sample next to a place, brought to the ends.
    [[nodiscard]] int sampleAt(double x) const;
};

/// Lays a plot out on `size`. `scale` is that of texts.
[[nodiscard]] PlotLayout layOutPlot(const PlotScene& scene, QSizeF size, double scale);

} // namespace tarnel
