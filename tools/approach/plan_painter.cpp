#include "tools/approach/plan_painter.h"

#include "tools/approach/graticule.h"
#include "tools/approach/plan_labels.h"
#include "tools/approach/profile_painter.h"
#include "tools/approach/sheet_ink.h"
#include "window/chart/chart_lines.h"
#include "window/chart/chart_overlays.h"
#include "window/chart/chart_symbols.h"

#include <array>

namespace tarnel {

namespace {

/// Symbols are those of a paper as wide as this, so that they suit a printed sheet.
constexpr double symbolPaper = 880;
constexpr double runwayWidth = 13;
constexpr double missedShort = 48;

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
          scaleBar(frame, of.plane.twips(1) / sheet_parts::twips),
          edgeMarks(graticule(of.plane, window, plates())),
          letterings(planLettering(plan, frame, window, drawnThings())) {}

    void paint();

  private:
    [[nodiscard]] std::array<Box, 2> plates() const;
    [[nodiscard]] PlanObstacles drawnThings() const;
    [[nodiscard]] PlanObstacles obstaclesOfLabels() const;
    [[nodiscard]] QPolygonF way(const std::vector<Point>& points) const;
    void paintRadials();
    void paintWay();
    void paintRunway();
    void paintArrow(Spot at, double course);
    void paintFixes();
    void paintStations();
    void paintTexts();
    void paintOverlays();
    [[nodiscard]] double belowTheSquare() const { return window.height - frame.side; }

    QPainter& painter;
    const ApproachSheet& sheet;
    const ApproachPlan& plan;
    Box window;
    ChartFrame frame;
    ChartFrame symbolFrame;
    ScaleBar scaleBar;
    std::vector<GraticuleMark> edgeMarks;
    std::vector<LetteringOnLine> letterings;
};

QPolygonF PlanPainter::way(const std::vector<Point>& points) const {
    QPolygonF line;
    for (const Point point : points)
        line << frame.at(point);
    return line;
}

/// Those of the scale bar and the north arrow.
std::array<Box, 2> PlanPainter::plates() const {
    std::array<Box, 2> both{scaleBar.plate, NorthArrow(frame).plate};
    for (Box& plate : both)
        plate.top += belowTheSquare();
    return both;
}

/// What stands on the plan whatever the lettering does.
PlanObstacles PlanPainter::drawnThings() const {
    PlanObstacles things;
    for (std::size_t slot = 0; slot < slotCount; ++slot) {
        const double across = 2 * symbolFrame.symbolRadius(slot);
        things.areas.push_back(
            Box::about(frame.spot(sheet.plane.station(static_cast<Slot>(slot))), {across, across}));
    }
    for (const Box& plate : plates())
        things.areas.push_back(plate);
    for (const GraticuleMark& mark : edgeMarks)
        things.areas.push_back(mark.text);
    for (const std::vector<Point>* line : {&plan.track, &plan.missed, &plan.hold})
        for (std::size_t i = 1; i < line->size(); ++i)
            things.lines.push_back({frame.spot((*line)[i - 1]), frame.spot((*line)[i])});
    things.lines.push_back({frame.spot(plan.threshold), frame.spot(plan.farEnd)});
    return things;
}

/// The labels keep clear of the lettering and of the radials, too. Of the symbols they take care
/// by themselves.
PlanObstacles PlanPainter::obstaclesOfLabels() const {
    PlanObstacles obstacles = drawnThings();
    obstacles.areas.erase(obstacles.areas.begin(), obstacles.areas.begin() + slotCount);
    for (const LetteringOnLine& lettering : letterings)
        obstacles.areas.push_back(lettering.area());
    for (const PlanRadial& radial : plan.radials)
        obstacles.lines.push_back({frame.spot(radial.from), frame.spot(radial.to)});
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
    std::vector<Point> missed = plan.missed; // ends short of its station's symbol
    const double course = courseOf(missed.back() - missed[missed.size() - 2]);
    missed.back() = missed.back() + onCourse(course, -missedShort * sheet_parts::twips);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(ink::dashed(ink::medium));
    painter.drawPolyline(way(missed));
    painter.setPen(QPen(look::day.ink, ink::medium, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(way(plan.hold));
    painter.setPen(QPen(look::day.ink, ink::track, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(way(plan.track));
    for (const LetteringOnLine& lettering : letterings)
        if (lettering.isFlown)
            paintArrow(lettering.on, lettering.course);
    paintArrow(frame.spot(missed.back()), course);
}

void PlanPainter::paintRunway() {
    painter.setPen(QPen(look::day.ink, runwayWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(frame.at(plan.threshold), frame.at(plan.farEnd));
}

void PlanPainter::paintArrow(Spot at, double course) {
    painter.save();
    painter.translate(toQt(at));
    painter.rotate(course);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::day.ink);
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

void PlanPainter::paintTexts() {
    for (const LetteringOnLine& lettering : letterings)
        paintLettering(painter, lettering);
    for (const PlanLabel& label : planLabels(sheet, symbolFrame, window, obstaclesOfLabels()))
        paintLabel(painter, label);
}

void PlanPainter::paintOverlays() {
    paintGraticule(painter, edgeMarks);
    painter.save();
    painter.translate(0, belowTheSquare());
    paintScaleBar(painter, frame, scaleBar, QStringLiteral("NM"));
    paintNorthArrow(painter, frame, 0, QStringLiteral("N"));
    painter.restore();
}

void PlanPainter::paint() {
    paintFeather(painter, frame, sheet.plane.picture.localizer);
    paintRadials();
    paintStations();
    paintWay();
    paintRunway();
    paintFixes();
    paintTexts();
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
