#include "window/dials/instrument_painter.h"

#include "instruments/needle_role.h"
#include "look/panel_look.h"
#include "window/dials/flag_painter.h"
#include "window/dials/needle_shapes.h"
#include "window/dials/needle_swatch.h"

#include <QPainter>

#include <span>

namespace tarnel {

namespace {

/// One paint: what is painted, and where to.
struct Scene {
    QPainter& painter;
    const InstrumentPicture& picture;
    double side;
    double scale; ///< pixels a twip
    NeedleShapes shapes;
    bool keeps; ///< on a screen: what comes again is kept as pixels

    [[nodiscard]] Scene on(QPainter& other) const {
        return {other, picture, side, scale, shapes, keeps};
    }
};

/// Paints a part that seldom changes: what `draw(scene)` paints within `place`.
template <class Key, class Draw>
void paintKept(const Scene& scene, KeptPainting<Key>& kept, const QRectF& place, const Key& key,
               const Draw& draw) {
    if (!scene.keeps)
        return draw(scene);
    kept.paint(scene.painter, place.toAlignedRect(), key,
               [&](QPainter& painter) { draw(scene.on(painter)); });
}

constexpr double longTickWeight = 1.45;
constexpr double shortTickWeight = 1.1;
constexpr std::size_t longTicks = 36;
constexpr double needleWeight = 1.25;
constexpr double arrowWeight = 1.4;
constexpr double barWeight = 1.5;
constexpr double hubRadius = 0.03; ///< of the side

/// The aircraft in the middle stands out from the needles about it.
QColor aircraftColour(InstrumentKind kind) {
    if (kind == InstrumentKind::adf)
        return look::needleTwo;
    return kind == InstrumentKind::dg ? look::ticks : look::headingBug;
}

// Long filled paths are slow, since the raster splits them over threads; single lines are not. So
// all that is straight is painted as lines.

void drawBar(QPainter& painter, const NeedleBar& bar, const QColor& colour) {
    painter.setPen(QPen(colour, bar.width, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(bar.axis);
}

/// A bar that is wider and longer by `edge` on every side.
NeedleBar grown(const NeedleBar& bar, double edge) {
    if (bar.axis.isNull())
        return bar;
    QLineF axis = bar.axis;
    const QPointF end = (axis.p2() - axis.p1()) * (edge / axis.length());
    return {QLineF(axis.p1() - end, axis.p2() + end), bar.width + 2 * edge};
}

void drawEdge(QPainter& painter, const NeedleShape& shape, double edge) {
    for (const NeedleBar& bar : shape.bars)
        drawBar(painter, grown(bar, edge), look::shapeEdge);
    painter.setPen(QPen(look::shapeEdge, 2 * edge, Qt::SolidLine, Qt::SquareCap));
    for (const QPolygonF& face : shape.faces)
        for (qsizetype i = 0; i < face.size(); ++i)
            painter.drawLine(face[i], face[(i + 1) % face.size()]);
}

/// Paints what lies over the card, with a dark edge.
void drawRaised(const Scene& scene, const NeedleShape& shape, const QColor& colour) {
    constexpr double edgeShare = 0.0028;
    QPainter& painter = scene.painter;
    drawEdge(painter, shape, scene.side * edgeShare);
    for (const NeedleBar& bar : shape.bars)
        drawBar(painter, bar, colour);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    for (const QPolygonF& face : shape.faces)
        painter.drawPolygon(face);
}

void paintBackground(const Scene& scene, PictureStore& pictures) {
    const QRectF square(0, 0, scene.side, scene.side);
    if (drawPicture(scene.painter, pictures, QString::fromStdString(scene.picture.Image1.file),
                    square))
        return;
    const double dial = scene.side * look::bezel::glassRadius;
    const double rounding = scene.side * look::bezelRadiusShare;
    QPainter& painter = scene.painter;
    painter.setBrush(look::downward(0, scene.side, look::bezelTop, look::bezelBottom));
    painter.drawRoundedRect(square, rounding, rounding);
    painter.setBrush(look::downward(0, scene.side, look::dialTop, look::dialBottom));
    painter.drawEllipse(square.center(), dial, dial);
}

void paintTicks(const Scene& scene) {
    const std::span all(scene.picture.Line1);
    const auto draw = [&scene](std::span<const Line> ticks, double weight) {
        QList<QLineF> axes;
        for (const Line& tick : ticks)
            if (tick.visible)
                axes << scene.shapes.bar(tick).axis;
        scene.painter.setPen(QPen(look::ticks, scene.shapes.bar(ticks.front(), weight).width,
                                  Qt::SolidLine, Qt::FlatCap));
        scene.painter.drawLines(axes);
    };
    draw(all.first(longTicks), longTickWeight);
    draw(all.subspan(longTicks), shortTickWeight);
    scene.painter.setPen(Qt::NoPen);
}

/// Above all needles, with a fine dark edge, so that they can be read where one passes.
void paintNumerals(const Scene& scene, NumeralShapes& numerals) {
    for (const Label& numeral : scene.picture.Label1)
        if (numeral.visible)
            numerals.paint(scene.painter, numeral, scene.picture.size, scene.scale);
}

void writeNumerals(const Scene& scene) {
    for (const Label& numeral : scene.picture.Label1) {
        if (!numeral.visible)
            continue;
        const NumeralText text = NumeralShapes::text(numeral, scene.picture.size, scene.scale);
        scene.painter.save();
        scene.painter.setTransform(text.place, true);
        scene.painter.setFont(text.font);
        for (const QColor& colour : {look::shapeEdge, look::ticks}) {
            scene.painter.setPen(colour);
            scene.painter.drawText(text.start, QString::fromStdString(numeral.caption));
        }
        scene.painter.restore();
    }
}

void paintHeadingBug(const Scene& scene) {
    if (hasHeadingBug(scene.picture.kind))
        drawRaised(scene, scene.shapes.headingBug(), look::headingBug);
}

/// What the dots cover, with their rings.
QRectF dotsArea(const Scene& scene) {
    QRectF area;
    for (const Round& dot : scene.picture.Shape2) {
        const double reach = dot.diameter * scene.scale;
        const QPointF at = scene.shapes.place(dot.centre);
        if (dot.visible)
            area |= QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach);
    }
    return area;
}

void paintDots(const Scene& scene) {
    constexpr double centreOpacity = 0.45;
    constexpr double ringShare = 0.0045;
    constexpr double ringInset = 0.6;
    QPainter& painter = scene.painter;
    painter.setBrush(Qt::NoBrush);
    for (const Round& dot : scene.picture.Shape2) {
        if (!dot.visible)
            continue;
        const bool centre = &dot == &scene.picture.Shape2.front();
        const double ring = scene.side * ringShare;
        const double radius = dot.diameter * scene.scale / 2 - ring * ringInset;
        painter.setPen(QPen(look::faded(look::ticks, centre ? centreOpacity : 1), ring));
        painter.drawEllipse(scene.shapes.place(dot.centre), radius, radius);
    }
    painter.setPen(Qt::NoPen);
}

void paintSecondNeedle(const Scene& scene) {
    const NeedleRole role = scene.picture.secondNeedle;
    if (role == NeedleRole::none)
        return;
    const auto& lines = scene.picture.Line7to12;
    const NeedleShapes& shapes = scene.shapes;
    const QColor colour = needleColour(role);
    drawRaised(scene, {{shapes.bar(lines[4])}, {}}, colour);
    if (role == NeedleRole::second) {
        drawEdge(scene.painter, {{shapes.secondBody()}, {}}, shapes.bar(lines.front()).width);
        drawBar(scene.painter, shapes.secondBody(), look::dialTop);
        for (const NeedleBar& bar : shapes.secondBars().bars)
            drawBar(scene.painter, bar, colour);
    }
    drawRaised(scene, shapes.secondHead(), colour);
}

bool hasCourseArrow(const InstrumentPicture& picture) {
    return firstNeedleOf(picture.kind) == NeedleRole::arrow;
}

void paintFirstNeedle(const Scene& scene) {
    const Line& shaft = scene.picture.Line3to6.front();
    if (!shaft.visible)
        return;
    const bool arrow = hasCourseArrow(scene.picture);
    drawRaised(scene, scene.shapes.firstNeedle(arrow ? arrowWeight : needleWeight),
               needleColour(firstNeedleOf(scene.picture.kind)));
    if (arrow)
        drawRaised(scene, {{scene.shapes.bar(scene.picture.Line14, arrowWeight)}, {}},
                   needleColour(NeedleRole::arrow));
}

void paintDeviation(const Scene& scene) {
    const InstrumentPicture& picture = scene.picture;
    if (picture.Line15.front().visible)
        drawRaised(scene, scene.shapes.triangle(), look::ticks);
    if (picture.Line13.visible)
        drawRaised(scene, {{scene.shapes.bar(picture.Line13, barWeight)}, {}},
                   needleColour(deviationOf(picture.kind)));
    if (picture.Line24.visible)
        drawRaised(scene, {{scene.shapes.bar(picture.Line24, longTickWeight)}, {}}, look::ticks);
}

bool hasHub(const InstrumentPicture& picture) {
    return picture.Line3to6.front().visible && !hasCourseArrow(picture);
}

/// With its shadow.
QRectF hubArea(const Scene& scene) {
    constexpr double reach = 1.3;
    const double half = scene.side * hubRadius * reach;
    return {scene.side / 2 - half, scene.side / 2 - half, 2 * half, 2 * half};
}

void paintHub(const Scene& scene) {
    constexpr double capShare = 0.88;
    constexpr double shadowShare = 1.08;
    constexpr double shadowDrop = 0.15;
    const QPointF centre(scene.side / 2, scene.side / 2);
    const double radius = scene.side * hubRadius;
    const double top = centre.y() - radius;
    const double bottom = centre.y() + radius;
    QPainter& painter = scene.painter;
    painter.setBrush(look::faded(Qt::black, 0.4));
    painter.drawEllipse(centre + QPointF(0, radius * shadowDrop), radius * shadowShare,
                        radius * shadowShare);
    painter.setBrush(look::downward(top, bottom, look::hubRim, look::bezelBottom));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(look::downward(top, bottom, look::bezelTop, look::keyBottom));
    painter.drawEllipse(centre, radius * capShare, radius * capShare);
}

void paintAircraft(const Scene& scene) {
    const Line& first = scene.picture.Line16.front();
    if (first.visible)
        drawRaised(scene, scene.shapes.aircraft(), aircraftColour(scene.picture.kind));
}

void paintFlags(const Scene& scene) {
    const InstrumentPicture& picture = scene.picture;
    if (picture.Label2_3.visible)
        paintNeedleName(scene.painter, picture.Label2_3,
                        picture.secondNeedle == NeedleRole::none
                            ? look::unit
                            : needleColour(picture.secondNeedle),
                        scene.scale);
    if (picture.flagged && picture.kind == InstrumentKind::vor)
        paintBarberFlag(scene.painter, picture.Label2_4, scene.scale);
    if (picture.flagged && picture.kind == InstrumentKind::hsi)
        paintWordFlag(scene.painter, picture.Text1, scene.scale);
}

} // namespace

void InstrumentPainter::paint(QPainter& painter, const InstrumentPicture& picture, double side) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double scale = side / picture.size;
    const Scene scene{painter,
                      picture,
                      side,
                      scale,
                      NeedleShapes(picture, scale),
                      numeralsAs == Numerals::pixels};
    paintKept(scene, ground, QRectF(0, 0, side, side), {picture.Image1.file, picture.Line1},
              [this](const Scene& below) {
                  paintBackground(below, pictures);
                  paintTicks(below);
              });
    paintHeadingBug(scene);
    paintKept(scene, dots, dotsArea(scene), picture.Shape2, paintDots);
    paintSecondNeedle(scene);
    paintFirstNeedle(scene);
    paintDeviation(scene);
    if (scene.keeps)
        paintNumerals(scene, numerals);
    else
        writeNumerals(scene);
    if (hasHub(picture))
        paintKept(scene, hub, hubArea(scene), {}, paintHub);
    paintAircraft(scene);
    paintFlags(scene);
    painter.restore();
}

} // namespace tarnel
