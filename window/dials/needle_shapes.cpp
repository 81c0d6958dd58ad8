#include "window/dials/needle_shapes.h"

#include "look/panel_look.h"

namespace tarnel {

QPolygonF NeedleShapes::polygon(std::initializer_list<Point> corners) const {
    QPolygonF result;
    for (const Point corner : corners)
        result << place(corner);
    return result;
}

NeedleBar NeedleShapes::bar(const Line& line, double weight) const {
    return {QLineF(place(line.from), place(line.to)),
            line.width * look::twipsPerPixel * scale * weight};
}

NeedleShape NeedleShapes::firstNeedle(double weight) const {
    constexpr double intoHead = 0.1;
    const auto& lines = picture.Line3to6;
    const QPolygonF head = polygon({lines[1].from, lines[0].to, lines[2].from});
    const QPointF base = (head[0] + head[2]) / 2;
    // The shaft ends within the head, so that the tip stays sharp.
    NeedleBar shaft = bar(lines[0], weight);
    shaft.axis.setP2(base + (head[1] - base) * intoHead);
    return {{shaft}, {head}};
}

NeedleBar NeedleShapes::secondBody() const {
    const auto& lines = picture.Line7to12;
    const QLineF left(place(lines[0].from), place(lines[0].to));
    const QLineF right(place(lines[1].from), place(lines[1].to));
    return {QLineF((left.p1() + right.p1()) / 2, (left.p2() + right.p2()) / 2),
            QLineF(left.p1(), right.p1()).length()};
}

NeedleShape NeedleShapes::secondBars() const {
    const auto& lines = picture.Line7to12;
    return {{bar(lines[0]), bar(lines[1]), bar(lines[5])}, {}};
}

NeedleShape NeedleShapes::secondHead() const {
    const auto& lines = picture.Line7to12;
    return {{}, {polygon({lines[2].from, lines[2].to, lines[3].from})}};
}

NeedleShape NeedleShapes::triangle() const {
    const auto& lines = picture.Line15;
    return {{}, {polygon({lines[0].from, lines[0].to, lines[1].from})}};
}

NeedleShape NeedleShapes::headingBug() const {
    const auto& lines = picture.Line17to23;
    return {{},
            {polygon({lines[0].from, lines[0].to, lines[2].to, lines[4].to, lines[6].to,
                      lines[5].from, lines[3].from})}};
}

NeedleShape NeedleShapes::aircraft() const {
    const auto& lines = picture.Line16;
    return {{bar(lines[0]), bar(lines[1]), bar(lines[2])}, {}};
}

} // namespace tarnel
