#include "window/debrief/plot_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnel {

namespace {

constexpr double captionWidth = 100;
constexpr double narrowCaptionWidth = 40;
constexpr double readoutWidth = 80;
constexpr double narrowReadoutWidth = 58;
constexpr double narrowPlot = 560; ///< below that captions and read-outs are narrow
constexpr double plotColumnGap = 8;
constexpr double phasesHeight = 34;
constexpr double lowPhasesHeight = 20; ///< a name alone
constexpr double lowPlot = 230;
constexpr double axisHeight = 24;
constexpr double rowGap = 6;

constexpr double leastLabelGap = 12; ///< px, from one number to the next
constexpr double mostBands = 4;      ///< a row shows so many times what is allowed
constexpr double leastMinuteGap = 44;
constexpr double curveStep = 0.4; ///< px, of what is left out of a curve

/// The next round number from `value` upwards.
double roundUp(double value) {
    if (value <= 0)
        return 1;
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double step : {1.0, 1.2, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0})
        if (step * power >= value * (1 - 1e-9))
            return step * power;
    return 10 * power;
}

struct Range {
    double low = 0;
    double high = 1;
};

struct Extremes {
    std::optional<double> least;
    std::optional<double> most;

    void take(double value) {
        least = std::min(least.value_or(value), value);
        most = std::max(most.value_or(value), value);
    }
};

Extremes extremesOf(const Series& series) {
    Extremes all;
    for (const std::optional<float>& value : series.values)
        if (value)
            all.take(*value);
    return all;
}

/// The whole circle, unless the flight keeps to a part of it.
Range headingRange(const Extremes& values) {
    constexpr double step = 30;
    constexpr double widePart = 150;
    const double low = std::floor(*values.least / step) * step;
    const double high = std::max(std::ceil(*values.most / step) * step, low + step);
    return high - low > widePart ? Range{0, 360} : Range{low, high};
}

Range speedRange(const Extremes& values) {
    constexpr double step = 10;
    return {std::floor(*values.least / step) * step - step,
            std::ceil(*values.most / step) * step + step};
}

/// What is allowed is always in sight, and of what is more than that not so much that it would be
/// small.
Range deviationRange(const Series& series, const Extremes& values) {
    double allowed = 0;
    for (const Series::Band& band : series.bands)
        allowed = std::max({allowed, std::abs(band.low), std::abs(band.high)});
    const double flown = std::max(std::abs(*values.least), std::abs(*values.most));
    double reach = std::max(flown, 1.5 * allowed);
    if (allowed > 0)
        reach = std::min(reach, mostBands * allowed);
    reach = roundUp(reach);
    return {*values.least < 0 ? -reach : 0, reach};
}

Range rangeOf(const Series& series) {
    const Extremes values = extremesOf(series);
    if (!values.least)
        return {};
    switch (series.kind) {
    case SeriesKind::heading:
        return headingRange(values);
    case SeriesKind::speed:
        return speedRange(values);
    case SeriesKind::distance:
        if (series.bands.empty())
            return {0, roundUp(*values.most)};
        [[fallthrough]];
    default:
        return deviationRange(series, values);
    }
}

/// Numbers at the edges and the limits, as many as have room.
std::vector<double> labelsOf(const PlotRow& row, double scale) {
    std::vector<double> wanted{row.high, row.low};
    for (const Series::Band& band : row.series->bands) {
        wanted.push_back(band.high);
        wanted.push_back(band.low);
    }
    wanted.push_back((row.low + row.high) / 2);
    std::vector<double> labels;
    for (const double value : wanted) {
        const bool within = value >= row.low && value <= row.high;
        if (within && std::ranges::all_of(labels, [&](double other) {
                return std::abs(row.yAt(value) - row.yAt(other)) >= leastLabelGap * scale;
            }))
            labels.push_back(value);
    }
    return labels;
}

/// Adds points to the last of its curves, and begins a new one after a gap.
class CurvePen {
  public:
    explicit CurvePen(PlotCurves& target) : curves(target) {}

    void lift() { down = false; }
    void go(QPointF to) {
        if (!down)
            curves.emplace_back();
        QPolygonF& curve = curves.back();
        const bool first = !std::exchange(down, true);
        if (first || std::abs(to.x() - curve.back().x()) >= curveStep ||
            std::abs(to.y() - curve.back().y()) >= curveStep)
            curve.append(to);
    }

  private:
    PlotCurves& curves;
    bool down = false;
};

bool leavesBand(const Series& series, int sample, double value) {
    return std::ranges::any_of(series.bands, [&](const Series::Band& band) {
        return sample >= band.samples.first && sample <= band.samples.last &&
               (value < band.low || value > band.high);
    });
}

/// Where the judge lets a deviation pass, such as over the station, the plot does too.
bool isOutside(const Debrief& debrief, int sample) {
    const auto index = static_cast<std::size_t>(sample);
    return index < debrief.outside.size() && debrief.outside[index];
}

/// A heading goes through north from one edge to the other: no line joins them.
bool jumps(const Series& series, double from, double to) {
    return series.kind == SeriesKind::heading && std::abs(to - from) > 180;
}

template <class Wanted>
void draw(PlotCurves& target, const PlotLayout& layout, const PlotRow& row, const Series& series,
          Wanted wanted) {
    CurvePen pen(target);
    std::optional<double> last;
    const int count = std::min(static_cast<int>(series.values.size()), layout.samples);
    for (int i = 0; i < count; ++i) {
        const std::optional<float>& value = series.values[static_cast<std::size_t>(i)];
        if (!value || !wanted(i, *value) || (last && jumps(series, *last, *value)))
            pen.lift();
        if (value && wanted(i, *value))
            pen.go({layout.xAt(i), row.yAt(*value)});
        last = value ? std::optional<double>(*value) : std::nullopt;
    }
}

QRectF between(const PlotLayout& layout, SampleSpan span, double top, double bottom) {
    const double left = layout.xAt(std::max(0.0, span.first - 0.5));
    const double right = layout.xAt(std::min(layout.samples - 1.0, span.last + 0.5));
    return {QPointF(left, top), QPointF(std::max(right, left + 1), bottom)};
}

void fillRow(PlotRow& row, const PlotLayout& layout, const PlotScene& scene, double scale) {
    const Series& series = *row.series;
    const Range range = rangeOf(series);
    row.low = range.low;
    row.high = range.high;
    row.labels = labelsOf(row, scale);
    for (const Series::Band& band : series.bands)
        row.bands.push_back(between(layout, band.samples, row.yAt(band.high), row.yAt(band.low)) &
                            row.frame);
    const auto any = [](int, double) { return true; };
    draw(row.own, layout, row, series, any);
    draw(row.outside, layout, row, series, [&](int sample, double value) {
        return isOutside(*scene.own, sample) && leavesBand(series, sample, value);
    });
    for (const Debrief* debrief : scene.earlier) {
        row.earlier.emplace_back();
        for (const Series& other : debrief->series)
            if (other.kind == series.kind)
                draw(row.earlier.back(), layout, row, other, any);
    }
}

double minutesApart(double pixelsPerMinute, double scale) {
    for (const double minutes : {0.25, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 30.0, 60.0})
        if (minutes * pixelsPerMinute >= leastMinuteGap * scale)
            return minutes;
    return 120;
}

std::vector<PlotLayout::Minute> minutesOf(const PlotLayout& layout, double start, double scale) {
    const double end = start + (layout.samples - 1) * secondsPerSample;
    const double step = 60 * minutesApart(layout.phases.width() / (end - start) * 60, scale);
    std::vector<PlotLayout::Minute> minutes;
    for (double time = std::ceil(start / step) * step; time <= end; time += step)
        minutes.push_back({layout.xAt((time - start) / secondsPerSample), time / 60});
    return minutes;
}

} // namespace

double PlotRow::yAt(double value) const {
    return frame.bottom() - (value - low) / (high - low) * frame.height();
}

std::optional<double> PlotRow::valueAt(int sample) const {
    const auto index = static_cast<std::size_t>(sample);
    if (sample < 0 || index >= series->values.size() || !series->values[index])
        return {};
    return *series->values[index];
}

double PlotLayout::xAt(double sample) const {
    return phases.left() + sample / std::max(1, samples - 1) * phases.width();
}

int PlotLayout::sampleAt(double x) const {
    const double share = (x - phases.left()) / std::max(1.0, phases.width());
    return std::clamp(static_cast<int>(std::lround(share * (samples - 1))), 0,
                      std::max(0, samples - 1));
}

PlotLayout layOutPlot(const PlotScene& scene, QSizeF size, double scale) {
    PlotLayout layout;
    const bool narrow = layout.narrow = size.width() < narrowPlot * scale;
    const double left = (narrow ? narrowCaptionWidth : captionWidth) * scale;
    const double right = (narrow ? narrowReadoutWidth : readoutWidth) * scale;
    const double gap = plotColumnGap * scale;
    const double head = (size.height() < lowPlot * scale ? lowPhasesHeight : phasesHeight) * scale;
    layout.phases = {left, 0, std::max(1.0, size.width() - left - right - gap), head};
    layout.axis = {left, size.height() - axisHeight * scale, layout.phases.width(),
                   axisHeight * scale};
    if (!scene.own || scene.samples < 2)
        return layout;
    layout.samples = scene.samples;
    for (const Phase& phase : scene.own->phases)
        layout.cells.push_back(between(layout, phase.samples, 0, head));
    const auto count = static_cast<double>(scene.own->series.size());
    const double room = layout.axis.top() - head - rowGap * scale * count;
    const double height = std::max(1.0, room / std::max(1.0, count));
    double top = head + rowGap * scale;
    for (const Series& series : scene.own->series) {
        PlotRow row;
        row.series = &series;
        row.frame = {left, top, layout.phases.width(), height};
        row.caption = {0, top, left - gap, height};
        row.readout = {row.frame.right() + gap, top, right, height};
        fillRow(row, layout, scene, scale);
        layout.rows.push_back(std::move(row));
        top += height + rowGap * scale;
    }
    layout.minutes = minutesOf(layout, scene.startSeconds, scale);
    if (scene.chosen)
        layout.chosen = between(layout, *scene.chosen, 0, layout.axis.top());
    return layout;
}

} // namespace tarnel
