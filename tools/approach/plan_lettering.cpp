#include "tools/approach/plan_lettering.h"

#include "core/station_geometry.h"
#include "paper/line_clipping.h"
#include "tools/approach/sheet_ink.h"

#include <QFontMetricsF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarnel {

namespace {

constexpr double gap = 9; ///< between a line and its text
constexpr double height = 30;
constexpr double arrowRoom = 18;
/// Where along a leg its course may stand, from the middle, and where along a radial its name.
constexpr double legPlaces[] = {0, 0.14, -0.14, 0.26, -0.26};
constexpr double radialPlaces[] = {0.6, 0.5, 0.7, 0.4, 0.8, 0.3};
constexpr double areaCost = 3; ///< of lines that are hit

QTransform placing(const LetteringOnLine& lettering) {
    QTransform placed;
    placed.translate(lettering.on.x, lettering.on.y);
    placed.rotate(lettering.turn);
    return placed;
}

double widthOf(const QString& words, bool isFlown) {
    return QFontMetricsF(ink::type(ink::body, isFlown)).horizontalAdvance(words) + 12;
}

/// With its altitude, unless that makes it longer than its leg.
QString wordsOf(const PlanMark& mark) {
    QString course = ink::qt(mark.text);
    if (mark.altitude.empty())
        return course;
    QString both = course + QStringLiteral("  ") + ink::qt(mark.altitude);
    const bool fits = mark.leg == 0 || widthOf(both, true) < mark.leg / sheet_parts::twips;
    return fits ? both : course;
}

LetteringOnLine lettered(Spot on, double course, const QString& words, bool isFlown, bool above) {
    const double width = widthOf(words, isFlown);
    double turn = turnBetween(90, course);
    if (std::abs(turn) > 90)
        turn += turn > 0 ? -180 : 180;
    return {on,    course, turn, {-width / 2, above ? -gap - height : gap, width, height},
            words, isFlown};
}

double cost(const LetteringOnLine& lettering, const PlanObstacles& obstacles) {
    const Box area = lettering.area();
    double sum = 0;
    for (const Box& other : obstacles.areas) {
        if (other.overlaps(area))
            sum += areaCost;
        if (lettering.isFlown && other.overlaps(Box::about(lettering.on, {arrowRoom, arrowRoom})))
            sum += areaCost;
    }
    for (const Stroke& line : obstacles.lines)
        if (lettering.isHitBy(line))
            sum += 1;
    return sum;
}

/// Takes the cheapest of the places, the first one of equals.
class BestPlace {
  public:
    explicit BestPlace(const PlanObstacles& all) : obstacles(all) {}

    void tryBothSides(Spot on, double course, const QString& words, bool isFlown) {
        for (const bool above : {true, false}) {
            const LetteringOnLine tried = lettered(on, course, words, isFlown, above);
            const double asked = cost(tried, obstacles);
            if (asked < least) {
                least = asked;
                best = tried;
            }
        }
    }

    LetteringOnLine best;

  private:
    const PlanObstacles& obstacles;
    double least = std::numeric_limits<double>::infinity();
};

} // namespace

Box LetteringOnLine::area() const {
    return toPaper(placing(*this).mapRect(toQt(box)));
}

bool LetteringOnLine::isHitBy(const Stroke& line) const {
    const QLineF own = placing(*this).inverted().map(toQt(line));
    return clipped({{own.x1(), own.y1()}, {own.x2(), own.y2()}}, box).has_value();
}

std::vector<LetteringOnLine> planLettering(const ApproachPlan& plan, const ChartFrame& frame,
                                           const Box& window, const PlanObstacles& obstacles) {
    PlanObstacles all = obstacles;
    std::vector<LetteringOnLine> letterings;
    const auto take = [&](const LetteringOnLine& best) {
        letterings.push_back(best);
        all.areas.push_back(best.area());
    };
    for (const PlanMark& mark : plan.marks) {
        BestPlace place(all);
        for (const double share : legPlaces)
            place.tryBothSides(frame.spot(mark.at + onCourse(mark.course, share * mark.leg)),
                               mark.course, wordsOf(mark), true);
        take(place.best);
    }
    for (const PlanRadial& radial : plan.radials) {
        const auto seen = clipped({frame.spot(radial.from), frame.spot(radial.to)}, window);
        if (!seen)
            continue;
        BestPlace place(all);
        for (const double share : radialPlaces)
            place.tryBothSides(seen->at(share), radial.radial, ink::qt(radial.text), false);
        take(place.best);
    }
    return letterings;
}

void paintLettering(QPainter& painter, const LetteringOnLine& lettering) {
    const QRectF box = toQt(lettering.box);
    painter.save();
    painter.setTransform(placing(lettering), true);
    painter.fillRect(box.adjusted(0, 3, 0, -3), look::faded(look::paper, 0.8));
    ink::text(painter, box, Qt::AlignCenter, lettering.words,
              ink::type(ink::body, lettering.isFlown));
    painter.restore();
}

} // namespace tarnel
