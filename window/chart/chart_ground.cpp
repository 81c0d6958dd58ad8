#include "window/chart/chart_ground.h"

#include "look/look.h"
#include "window/chart/chart_lines.h"
#include "window/chart/chart_overlays.h"
#include "window/widgets/rounded_fill.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double traceDiameter = 4.4;

const std::vector<Dot> noDots;

bool isSame(const Dot& one, const Dot& other) {
    return one.x == other.x && one.y == other.y && one.colour == other.colour;
}

} // namespace

void ChartGround::paint(QPainter& painter, const ChartFrame& frame, const GridPlace& grid,
                        const ChartPicture& picture, bool traced) {
    const std::vector<Dot>& dots = traced ? picture.trace.all() : noDots;
    const Shown now{grid, picture.localizer, picture.radialsI2, picture.radialsI3};
    const bool cameAgain = shown == now && frame.medium == ChartMedium::screen;
    if (!cameAgain) {
        shown = now;
        kept = {};
        return paintAll(painter, frame, *shown, dots);
    }
    if (!keeps(dots)) {
        kept = QPixmap((frame.paper.size() * frame.pixelRatio).toSize());
        kept.setDevicePixelRatio(frame.pixelRatio);
        kept.fill(Qt::transparent);
        keptDots.clear();
        QPainter onKept(&kept);
        onKept.setRenderHint(QPainter::Antialiasing);
        paintAll(onKept, frame, now, noDots);
    }
    if (keptDots.size() < dots.size()) {
        QPainter onKept(&kept);
        onKept.setRenderHint(QPainter::Antialiasing);
        paintDots(onKept, frame, std::span(dots).subspan(keptDots.size()));
        keptDots = dots;
    }
    painter.drawPixmap(frame.paper.topLeft(), kept);
}

/// Whether the kept pixmap holds no dot but the first of these.
bool ChartGround::keeps(const std::vector<Dot>& dots) const {
    return !kept.isNull() && keptDots.size() <= dots.size() &&
           std::equal(keptDots.begin(), keptDots.end(), dots.begin(), isSame);
}

void ChartGround::paintAll(QPainter& painter, const ChartFrame& frame, const Shown& now,
                           const std::vector<Dot>& dots) {
    fillRounded(painter, frame.paper, look::paperRadius, look::paper);
    painter.save();
    painter.setClipRect(frame.paper);
    paintGrid(painter, frame, now.grid);
    paintFeather(painter, frame, now.localizer);
    paintRadials(painter, frame, now.radialsI2);
    paintRadials(painter, frame, now.radialsI3);
    paintDots(painter, frame, dots);
    painter.restore();
}

void ChartGround::paintDots(QPainter& painter, const ChartFrame& frame, std::span<const Dot> dots) {
    trace.paint(painter, frame, dots, traceDiameter * frame.symbolScale);
}

} // namespace tarnel
