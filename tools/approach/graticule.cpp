#include "tools/approach/graticule.h"

#include "tools/approach/sheet_ink.h"
#include "window/chart/paper_shapes.h"

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr int perDegree = 6; ///< marks
constexpr int marksEachWay = 12;
constexpr double tickLength = 14;
constexpr double fromCorner = 60;
constexpr RoomNeeded textRoom{96, 24};

QString named(int mark, char positive, char negative) {
    const int minutes = std::abs(mark) * 60 / perDegree;
    return QString::fromLatin1(mark < 0 ? &negative : &positive, 1) +
           QStringLiteral(" %1").arg(minutes / 60) + QChar(0xB0) +
           QStringLiteral("%1'").arg(minutes % 60, 2, 10, QLatin1Char('0'));
}

/// Collects the marks of one plan.
class GraticuleMaker {
  public:
    GraticuleMaker(const ChartPlane& on, const Box& inside, std::span<const Box> taken)
        : plane(on), window(inside), occupied(taken) {}

    std::vector<GraticuleMark> make();

  private:
    [[nodiscard]] Spot spot(double latitude, double longitude) const {
        const Point at = plane.place({latitude, longitude});
        return Spot{at.x, at.y} * (1 / sheet_parts::twips);
    }
    /// Minutes of latitude are miles on the chart, everywhere alike.
    [[nodiscard]] double latitudeAt(double y) const {
        const double down = y - spot(plane.centre().latitude, plane.centre().longitude).y;
        return plane.centre().latitude - plane.miles(down * sheet_parts::twips) / 60;
    }
    void add(const Stroke& tick, const Box& text, const QString& words);
    void addParallel(int mark);
    void addMeridian(int mark, double edge);

    const ChartPlane& plane;
    const Box& window;
    std::span<const Box> occupied;
    std::vector<GraticuleMark> marks;
};

void GraticuleMaker::add(const Stroke& tick, const Box& text, const QString& words) {
    const bool free = std::none_of(occupied.begin(), occupied.end(),
                                   [&](const Box& area) { return area.overlaps(text); });
    marks.push_back({tick, free ? text : Box{}, words});
}

void GraticuleMaker::addParallel(int mark) {
    const double y = spot(static_cast<double>(mark) / perDegree, plane.centre().longitude).y;
    if (y < fromCorner || y > window.height - fromCorner)
        return;
    const Spot text{tickLength + 4 + textRoom.width / 2, y};
    add({{0, y}, {tickLength, y}}, Box::about(text, textRoom), named(mark, 'N', 'S'));
    add({{window.width, y}, {window.width - tickLength, y}}, {}, {});
}

void GraticuleMaker::addMeridian(int mark, double edge) {
    const double x = spot(latitudeAt(edge), static_cast<double>(mark) / perDegree).x;
    if (x < fromCorner || x > window.width - fromCorner)
        return;
    const bool lower = edge > 0;
    const double end = lower ? edge - tickLength : tickLength;
    const Spot text{x, end - textRoom.height / 2};
    add({{x, edge}, {x, end}}, lower ? Box::about(text, textRoom) : Box{}, named(mark, 'E', 'W'));
}

std::vector<GraticuleMark> GraticuleMaker::make() {
    const int parallel = static_cast<int>(std::lround(plane.centre().latitude * perDegree));
    const int meridian = static_cast<int>(std::lround(plane.centre().longitude * perDegree));
    for (int step = -marksEachWay; step <= marksEachWay; ++step) {
        addParallel(parallel + step);
        for (const double edge : {0.0, window.height})
            addMeridian(meridian + step, edge);
    }
    return std::move(marks);
}

} // namespace

std::vector<GraticuleMark> graticule(const ChartPlane& plane, const Box& window,
                                     std::span<const Box> occupied) {
    return GraticuleMaker(plane, window, occupied).make();
}

void paintGraticule(QPainter& painter, std::span<const GraticuleMark> marks) {
    for (const GraticuleMark& mark : marks) {
        painter.setPen(ink::pen(ink::thin));
        painter.drawLine(toQt(mark.tick));
        if (!mark.text.empty())
            ink::text(painter, toQt(mark.text), Qt::AlignCenter, mark.words, ink::type(ink::tiny),
                      look::day.secondaryInk);
    }
}

} // namespace tarnel
