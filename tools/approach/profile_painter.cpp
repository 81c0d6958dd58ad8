#include "tools/approach/profile_painter.h"

#include "core/station_geometry.h"
#include "tools/approach/sheet_ink.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr double besideWay = 40;   ///< at the left and the right
constexpr double ground = 86;      ///< from the part's lower edge
constexpr double sky = 86;         ///< from its upper edge to the highest altitude
constexpr double beforeJoin = 1.6; ///< NM of the way that is shown before the final course
constexpr double afterRunway = 1.6;
constexpr double onCourseMiles = 0.3; ///< that a beacon may stand beside the final course
constexpr double apart = 0.3;         ///< NM between a beacon and fix or threshold
constexpr double courseWidth = 150;
constexpr double textWidth = 300;

/// Paints one profile.
class Profile {
  public:
    Profile(QPainter& onto, const QRectF& place, const ApproachSheet& of)
        : painter(onto),
          area(place),
          sheet(of),
          plan(of.plan),
          descent(of.plan.descent),
          farthest(std::max(plan.joinDme, descent.fixDme()) + beforeJoin),
          nearest(descent.thresholdDme - runwayMiles() - afterRunway),
          highest(std::max(plan.joinAltitude, descent.altitude)),
          beacons(beaconsOnCourse()) {}

    void paint();

  private:
    struct Beacon {
        Slot slot;
        double dme = 0;
    };

    [[nodiscard]] std::vector<Beacon> beaconsOnCourse() const;
    [[nodiscard]] double placeOfCourse() const;
    [[nodiscard]] double runwayMiles() const { return sheet.source.length * 0.3048 / 1852; }
    [[nodiscard]] double x(double dme) const {
        const double share = (farthest - dme) / (farthest - nearest);
        return area.left() + besideWay + share * (area.width() - 2 * besideWay);
    }
    [[nodiscard]] double groundLine() const { return area.bottom() - ground; }
    [[nodiscard]] double y(double altitude) const {
        const double share = (altitude - descent.elevation) / (highest - descent.elevation);
        return groundLine() - share * (groundLine() - area.top() - sky);
    }
    [[nodiscard]] QPointF at(double dme, double altitude) const { return {x(dme), y(altitude)}; }
    void paintWay();
    void paintMissed();
    void paintGround();
    void paintScale();
    void paintFinalFix();
    void paintBeacons();
    void paintWords();
    void label(double atX, double top, const QString& words, const QFont& font,
               int alignment = Qt::AlignHCenter);

    QPainter& painter;
    const QRectF& area;
    const ApproachSheet& sheet;
    const ApproachPlan& plan;
    const Descent& descent;
    double farthest;
    double nearest;
    double highest;
    std::vector<Beacon> beacons;
};

void Profile::label(double atX, double top, const QString& words, const QFont& font,
                    int alignment) {
    const double left = alignment == Qt::AlignHCenter ? atX - textWidth / 2
                        : alignment == Qt::AlignRight ? atX - textWidth
                                                      : atX;
    ink::text(painter, {left, top, textWidth, 40}, alignment | Qt::AlignTop, words, font);
}

void Profile::paintWay() {
    QPolygonF way;
    way << at(farthest, plan.joinAltitude);
    if (plan.joinAltitude != descent.altitude)
        way << at(plan.joinDme, plan.joinAltitude)
            << at(plan.joinDme - (plan.joinAltitude - descent.altitude) / 300.0, descent.altitude);
    way << at(descent.fixDme(), descent.altitude)
        << at(descent.thresholdDme, descent.altitudeAt(descent.thresholdDme));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(look::day.ink, ink::track, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(way);
}

void Profile::paintMissed() {
    const double begin = descent.thresholdDme + 0.35;
    const QPointF from = at(begin, descent.altitudeAt(begin));
    const QPointF to(x(nearest), area.top() + sky + 10);
    QPainterPath path(from);
    path.quadTo(QPointF(from.x() + (to.x() - from.x()) * 0.35, from.y()), to);
    painter.setPen(ink::dashed(ink::medium));
    painter.drawPath(path);
    const double angle = -path.angleAtPercent(1);
    painter.save();
    painter.translate(to);
    painter.rotate(angle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::day.ink);
    painter.drawPolygon(QPolygonF{{10.0, 0.0}, {-16.0, -9.0}, {-16.0, 9.0}});
    painter.restore();
}

void Profile::paintGround() {
    painter.setPen(ink::pen(ink::thin));
    painter.drawLine(QPointF(area.left(), groundLine()), QPointF(area.right(), groundLine()));
    painter.fillRect(QRectF(QPointF(x(descent.thresholdDme), groundLine() - 5),
                            QPointF(x(descent.thresholdDme - runwayMiles()), groundLine() + 5)),
                     look::day.ink);
    label(x(descent.thresholdDme - runwayMiles() / 2), groundLine() + 12,
          QStringLiteral("RWY ") + ink::qt(sheet.source.runway), ink::type(ink::small, true));
}

/// Miles of the DME, and below them how far it is from the fix to the threshold.
void Profile::paintScale() {
    const double row = groundLine() + 8;
    for (int mile = static_cast<int>(farthest); mile >= descent.thresholdDme; --mile) {
        painter.setPen(ink::pen(ink::hair));
        painter.drawLine(QPointF(x(mile), groundLine()), QPointF(x(mile), groundLine() + 10));
        label(x(mile), row + 4, QString::number(mile), ink::type(ink::small));
    }
    label(area.right() - 16, row + 4,
          ink::qt(sheet.chart.identifier(Slot::localizer)) + QStringLiteral(" DME"),
          ink::type(ink::small), Qt::AlignRight);
    const double line = area.bottom() - 22;
    const double from = x(descent.fixDme());
    const double to = x(descent.thresholdDme);
    painter.setPen(ink::pen(ink::hair));
    painter.drawLine(QPointF(from, line), QPointF(to, line));
    for (const double end : {from, to})
        painter.drawLine(QPointF(end, line - 8), QPointF(end, line + 8));
    const QString miles =
        ink::qt(oneDecimal(descent.fixDme() - descent.thresholdDme)) + QStringLiteral(" NM");
    painter.fillRect(QRectF((from + to) / 2 - 50, line - 12, 100, 24), look::paper);
    label((from + to) / 2, line - 14, miles, ink::type(ink::small));
}

/// The cross that marks the final approach fix, and what is there.
void Profile::paintFinalFix() {
    const QPointF fix = at(descent.fixDme(), descent.altitude);
    painter.setPen(ink::pen(ink::hair));
    painter.drawLine(QPointF(fix.x(), area.top() + sky - 20), QPointF(fix.x(), groundLine()));
    paintMalteseCross(painter, fix);
    label(fix.x(), area.top() + 8, QStringLiteral("FAF"), ink::type(ink::body, true));
    label(fix.x(), area.top() + 36, QStringLiteral("D") + ink::qt(oneDecimal(descent.fixDme())),
          ink::type(ink::small));
}

std::vector<Profile::Beacon> Profile::beaconsOnCourse() const {
    std::vector<Beacon> found;
    for (const Slot slot : {Slot::ndb1, Slot::ndb2, Slot::vor1, Slot::vor2}) {
        const Point way = sheet.plane.station(slot) - sheet.plane.station(Slot::localizer);
        const FromStation seen{courseOf(way), sheet.plane.miles(lengthOf(way))};
        const double dme = -seen.alongTrack(sheet.plane.finalCourse());
        if (std::abs(seen.crossTrack(sheet.plane.finalCourse())) < onCourseMiles &&
            dme > descent.thresholdDme + apart && dme < descent.fixDme() - apart)
            found.push_back({slot, dme});
    }
    return found;
}

void Profile::paintBeacons() {
    for (const Beacon& beacon : beacons) {
        const double altitude = descent.altitudeAt(beacon.dme);
        const double at = x(beacon.dme);
        painter.setPen(ink::pen(ink::hair));
        painter.drawLine(QPointF(at, y(altitude) - 46), QPointF(at, groundLine()));
        label(
            at + 8, y(altitude) - 72,
            ink::qt(sheet.chart.identifier(beacon.slot) + (hasDme(beacon.slot) ? " VOR" : " NDB")),
            ink::type(ink::small, true), Qt::AlignLeft);
        label(at + 8, y(altitude) - 46, ink::feet(std::round(altitude / 10) * 10),
              ink::type(ink::small), Qt::AlignLeft);
    }
}

/// Below the path, between the lines of the beacons.
double Profile::placeOfCourse() const {
    for (const double share : {0.5, 0.6, 0.4, 0.7, 0.3}) {
        const double dme = descent.thresholdDme + share * (descent.fixDme() - descent.thresholdDme);
        if (std::none_of(beacons.begin(), beacons.end(), [&](const Beacon& beacon) {
                return std::abs(x(beacon.dme) - x(dme)) < courseWidth / 2;
            }))
            return dme;
    }
    return (descent.fixDme() + descent.thresholdDme) / 2;
}

void Profile::paintWords() {
    const double level = y(plan.joinAltitude) - 42;
    label(x(farthest), level, ink::feet(plan.joinAltitude), ink::type(ink::value, true),
          Qt::AlignLeft);
    if (plan.joinAltitude != descent.altitude)
        label(x(descent.fixDme()) - 14, y(descent.altitude) + 6, ink::feet(descent.altitude),
              ink::type(ink::value, true), Qt::AlignRight);
    const double middle = placeOfCourse();
    const QLineF path(at(descent.fixDme(), descent.altitude),
                      at(descent.thresholdDme, descent.elevation));
    painter.save();
    painter.translate(at(middle, descent.altitudeAt(middle)));
    painter.rotate(-path.angle());
    label(0, 8,
          ink::qt(threeDigits(sheet.plane.finalCourse())) + QChar(0xB0) + QStringLiteral("   3.0") +
              QChar(0xB0),
          ink::type(ink::body, true));
    painter.restore();
    label(area.right() - 16, area.top() + 30, ink::feet(sheet.source.missed.altitude),
          ink::type(ink::body, true), Qt::AlignRight);
}

void Profile::paint() {
    paintGround();
    paintScale();
    paintMissed();
    paintBeacons();
    paintWay();
    paintFinalFix();
    paintWords();
}

} // namespace

void paintMalteseCross(QPainter& painter, QPointF at) {
    constexpr double reach = 17;
    constexpr double half = 11;
    painter.save();
    painter.translate(at);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::day.ink);
    for (int arm = 0; arm < 4; ++arm) {
        painter.drawPolygon(
            QPolygonF{{0.0, 0.0}, {-half, -reach}, {0.0, -reach + 5}, {half, -reach}});
        painter.rotate(90);
    }
    painter.restore();
}

void paintProfile(QPainter& painter, const QRectF& place, const ApproachSheet& sheet) {
    Profile(painter, place, sheet).paint();
}

} // namespace tarnel
