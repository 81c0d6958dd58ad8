#include "window/debrief/chart_tracks.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double trackStep = 0.6; ///< px, of what is left out of a curve

void append(QPolygonF& curve, QPointF to) {
    if (curve.isEmpty() || std::abs(to.x() - curve.back().x()) >= trackStep ||
        std::abs(to.y() - curve.back().y()) >= trackStep)
        curve.append(to);
}

std::vector<QPointF> pathOf(const Attempt& attempt, const OnPaper& place) {
    std::vector<QPointF> path;
    path.reserve(attempt.samples.size());
    for (const Sample& sample : attempt.samples)
        path.push_back(place({sample.traceLat, sample.traceLon}));
    return path;
}

QPolygonF curveOf(std::span<const QPointF> path) {
    QPolygonF curve;
    for (const QPointF& spot : path)
        append(curve, spot);
    return curve;
}

std::vector<QPolygonF> outsideOf(std::span<const QPointF> path, const std::vector<bool>& outside) {
    std::vector<QPolygonF> parts;
    const std::size_t count = std::min(path.size(), outside.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (!outside[i])
            continue;
        if (i == 0 || !outside[i - 1])
            parts.emplace_back();
        append(parts.back(), path[i]);
    }
    return parts;
}

std::optional<ChartTracks::Allowed> allowedIn(const Debrief& debrief) {
    for (const Series& series : debrief.series) {
        const bool across = series.kind == SeriesKind::offReference ||
                            series.kind == SeriesKind::offArc || series.kind == SeriesKind::needle;
        if (across && !series.bands.empty())
            return ChartTracks::Allowed{series.bands.front().high, series.unit};
    }
    return {};
}

} // namespace

ChartTracks layOutTracks(const Attempt& attempt, std::span<const Attempt> earlier,
                         std::optional<SampleSpan> chosen, const OnPaper& place) {
    ChartTracks tracks;
    tracks.allowed = allowedIn(attempt.debrief);
    for (const TaskLine& line : attempt.debrief.lines) {
        ChartTracks::TaskCurve curve{line.kind, {}};
        for (const GeoPosition& point : line.points)
            append(curve.points, place(point));
        if (line.kind == TaskLineKind::corridor)
            tracks.corridors.push_back(std::move(curve.points));
        else
            tracks.task.push_back(std::move(curve));
    }
    const std::vector<QPointF> path = pathOf(attempt, place);
    tracks.own = curveOf(path);
    tracks.outside = outsideOf(path, attempt.debrief.outside);
    if (path.empty())
        return tracks;
    const auto sampleAt = [&](int sample) {
        return static_cast<std::size_t>(std::clamp(sample, 0, static_cast<int>(path.size()) - 1));
    };
    const SampleSpan part = chosen.value_or(SampleSpan{0, static_cast<int>(path.size()) - 1});
    const std::size_t first = sampleAt(part.first);
    const std::size_t last = sampleAt(part.last);
    tracks.place = path[(first + last) / 2];
    if (chosen && last > first)
        tracks.chosen = curveOf(std::span(path).subspan(first, last - first + 1));
    for (const Attempt& each : earlier)
        tracks.earlier.push_back(curveOf(pathOf(each, place)));
    return tracks;
}

std::vector<QRectF> flowOf(std::span<const double> widths, double left, double right, double top,
                           double lineHeight) {
    std::vector<QRectF> boxes;
    double x = left;
    for (const double width : widths) {
        if (x > left && x + width > right) {
            x = left;
            top += lineHeight;
        }
        boxes.emplace_back(x, top, width, lineHeight);
        x += width;
    }
    return boxes;
}

} // namespace tarnel
