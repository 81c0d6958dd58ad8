#include "tools/approach/plan_painter.h"

#include "core/station_geometry.h"
#include "paper/line_clipping.h"
#include "tools/approach/plan_labels.h"
#include "tools/approach/profile_painter.h"
#include "tools/approach/sheet_ink.h"
#include "window/chart/chart_lines.h"
#include "window/chart/chart_overlays.h"
#include "window/chart/chart_symbols.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

/// Symbols are those of a paper as wide as this, so that they suit a printed sheet.
constexpr double symbolPaper = 880;
constexpr double runwayWidth = 13;
constexpr double markGap = 9; ///< between the way and its lettering
constexpr double markHeight = 30;
constexpr double radialPlace = 0.6; ///< of a radial's visible length, for its lettering

/// A text along a line, never upside down.
struct LetteringOnLine {
    QPointF on;
    double turn = 0; ///< degrees clockwise
    QRectF box;      ///< about `on`, before it is turned
    QString words;
    bool bold = false;
};

LetteringOnLine lettered(Spot on, double course, const QString& words, bool bold) {
    const double width = QFontMetricsF(ink::type(ink::body, bold)).horizontalAdvance(words) + 12;
    double turn = turnBetween(90, course);
    if (std::abs(turn) > 90)
        turn += turn > 0 ? -180 : 180;
    return {toQt(on), turn, QRectF(-width / 2, -markGap - markHeight, width, markHeight), words,
            bold};
}

/// The upright box around a lettering.
Box areaOf(const LetteringOnLine& lettering) {
    QTransform turned;
    turned.translate(lettering.on.x(), lettering.on.y());
    turned.rotate(lettering.turn);
    return toPaper(turned.mapRect(lettering.box));
}

/// Paints one plan about the window's upper left corner.
class PlanPainter {
  public:
    PlanPainter(QPainter& onto, const QRectF& place, const ApproachSheet& of)
        : painter(onto),
          sheet(of),
          plan(of.plan),
          window{0, 0, place.width(), place.height()},
          frame(place.width(), place.width() * sheet_parts::twips, 1, ChartMedium::sheet),
          symbolFrame(symbolPaper, symbolPaper * sheet_parts::twips, 1, ChartMedium::sheet),
          scaleBar(frame, of.plane.twips(1) / sheet_parts::twips) {}

    void paint();

  private:
    void layOutLettering();
    [[nodiscard]] PlanObstacles obstacles() const;
    [[nodiscard]] QPolygonF way(const std::vector<Point>& points) const;
    void paintRadials();
    void paintWay();
    void paintRunway();
    void paintArrow(Spot at, double course);
    void paintFixes();
    void paintStations();
    void paintLettering();
    void paintOverlays();
    [[nodiscard]] double belowTheSquare() const { return window.height - frame.side; }

    QPainter& painter;
    const ApproachSheet& sheet;
    const ApproachPlan& plan;
    Box window;
    ChartFrame frame;
    ChartFrame symbolFrame;
    ScaleBar scaleBar;
    std::vector<LetteringOnLine> letterings;
};

QPolygonF PlanPainter::way(const std::vector<Point>& points) const {
    QPolygonF line;
    for (const Point point : points)
        line << frame.at(point);
    return line;
}

void PlanPainter::layOutLettering() {
    for (const PlanMark& mark : plan.marks)
        letterings.push_back(lettered(frame.spot(mark.at), mark.course, ink::qt(mark.text), true));
    for (const PlanRadial& radial : plan.radials) {
        const Stroke line{frame.spot(radial.from), frame.spot(radial.to)};
        if (const auto seen = clipped(line, window))
            letterings.push_back(
                lettered(seen->at(radialPlace), radial.radial, ink::qt(radial.text), false));
    }
}

PlanObstacles PlanPainter::obstacles() const {
    PlanObstacles obstacles;
    for (const LetteringOnLine& lettering : letterings)
        obstacles.areas.push_back(areaOf(lettering));
    for (Box plate : {scaleBar.plate, NorthArrow(frame).plate}) {
        plate.top += belowTheSquare();
        obstacles.areas.push_back(plate);
    }
    for (const std::vector<Point>* line : {&plan.track, &plan.missed, &plan.hold})
        for (std::size_t i = 1; i < line->size(); ++i)
            obstacles.lines.push_back({frame.spot((*line)[i - 1]), frame.spot((*line)[i])});
    for (const PlanRadial& radial : plan.radials)
        obstacles.lines.push_back({frame.spot(radial.from), frame.spot(radial.to)});
    obstacles.lines.push_back({frame.spot(plan.threshold), frame.spot(plan.farEnd)});
    return obstacles;
}

void PlanPainter::paintRadials() {
    for (const PlanRadial& radial : plan.radials) {
        const QColor colour =
            look::fromSurface(slotColour(static_cast<std::size_t>(radial.station)));
        painter.setPen(ink::dashed(ink::thin, colour));
        painter.drawLine(frame.at(radial.from), frame.at(radial.to));
    }
}

void PlanPainter::paintWay() {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(ink::dashed(ink::medium));
    painter.drawPolyline(way(plan.missed));
    painter.setPen(QPen(look::ink, ink::medium, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(way(plan.hold));
    painter.setPen(QPen(look::ink, ink::track, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(way(plan.track));
    for (const PlanMark& mark : plan.marks)
        paintArrow(frame.spot(mark.at), mark.course);
    if (plan.missed.size() > 1)
        paintArrow(frame.spot(plan.missed.back()),
                   courseOf(plan.missed.back() - plan.missed[plan.missed.size() - 2]));
}

void PlanPainter::paintRunway() {
    painter.setPen(QPen(look::ink, runwayWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(frame.at(plan.threshold), frame.at(plan.farEnd));
}

void PlanPainter::paintArrow(Spot at, double course) {
    painter.save();
    painter.translate(toQt(at));
    painter.rotate(course);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::ink);
    painter.drawPolygon(QPolygonF{{0.0, -18.0}, {12.0, 14.0}, {0.0, 7.0}, {-12.0, 14.0}});
    painter.restore();
}

void PlanPainter::paintFixes() {
    for (const PlanFix& fix : plan.fixes) {
        if (fix.isFinal) {
            paintMalteseCross(painter, frame.at(fix.at));
            continue;
        }
        painter.setPen(ink::pen(ink::thin));
        painter.setBrush(look::paper);
        constexpr double half = 13;
        painter.drawPolygon(
            QPolygonF{{0.0, -half * 1.1}, {half, half * 0.8}, {-half, half * 0.8}}.translated(
                frame.at(fix.at)));
    }
}

void PlanPainter::paintStations() {
    ChartSymbols symbols;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const Slot which = static_cast<Slot>(slot);
        if (const auto edge = edgeTowards(sheet, frame, window, which))
            paintArrow(*edge, courseOf(sheet.plane.station(which) - plan.threshold));
        else
            symbols.paint(painter, symbolFrame, sheet.plane.picture.symbols[slot], slot, 0);
    }
}

void PlanPainter::paintLettering() {
    for (const LetteringOnLine& lettering : letterings) {
        painter.save();
        painter.translate(lettering.on);
        painter.rotate(lettering.turn);
        painter.fillRect(lettering.box.adjusted(0, 3, 0, -3), look::faded(look::paper, 0.8));
        ink::text(painter, lettering.box, Qt::AlignCenter, lettering.words,
                  ink::type(ink::body, lettering.bold));
        painter.restore();
    }
    for (const PlanLabel& label : planLabels(sheet, symbolFrame, window, obstacles()))
        paintLabel(painter, label);
}

void PlanPainter::paintOverlays() {
    painter.save();
    painter.translate(0, belowTheSquare());
    paintScaleBar(painter, frame, scaleBar, QStringLiteral("NM"));
    paintNorthArrow(painter, frame, 0, QStringLiteral("N"));
    painter.restore();
}

void PlanPainter::paint() {
    layOutLettering();
    paintFeather(painter, frame, sheet.plane.picture.localizer);
    paintRadials();
    paintStations();
    paintWay();
    paintRunway();
    paintFixes();
    paintLettering();
    paintOverlays();
}

} // namespace

void paintPlan(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    painter.save();
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    PlanPainter(painter, place, sheet).paint();
    painter.restore();
}

} // namespace tarnel
