#include "window/debrief/debrief_layer.h"

#include "look/look.h"
#include "paper/callout.h"
#include "paper/plates.h"
#include "shell/finding_text.h"
#include "window/debrief/finding_rows.h"
#include "window/debrief/plot_painter.h"
#include "window/debrief/plot_view.h"
#include "window/widgets/text_of.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tarnel {

namespace {

constexpr QColor ownInk = look::rgb(0x0093B2);
constexpr QColor earlierInk = look::rgb(0x66B7C9);
constexpr QColor outsideInk = look::rgb(0xB05A00);
constexpr QColor taskInk = look::rgb(0x7E8994);
constexpr QColor corridorInk = look::rgb(0x5C6875);

constexpr double ownWidth = 3;
constexpr double otherWidth = 2; ///< of what the chosen finding does not speak of
constexpr double outsideWidth = 6;
constexpr double earlierWidth = 1.5;
constexpr double taskWidth = 2;
constexpr double haloWidth = 15;
constexpr double haloOpacity = 0.2;
constexpr double corridorOpacity = 0.08;

constexpr double leastFoot = 52;
constexpr double legendLine = 18;
constexpr double swatchWidth = 30;
constexpr double swatchGap = 7;
constexpr double entryGap = 16;
constexpr double footInset = 9;
constexpr double smallSide = 360; ///< of a paper with room for short words only

QPen roundPen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// The later of two earlier flights is dashed.
QPen earlierPen(std::size_t index) {
    QPen pen = roundPen(earlierInk, earlierWidth);
    if (index > 0)
        pen.setDashPattern({4, 3});
    return pen;
}

/// Arrows along a curve tell which way it is flown.
void paintArrows(QPainter& painter, const QPolygonF& curve) {
    constexpr double shares[] = {0.3, 0.8};
    constexpr double shortest = 60;
    constexpr double size = 6;
    QPainterPath path;
    path.addPolygon(curve);
    if (path.length() < shortest)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(taskInk);
    for (const double share : shares) {
        painter.save();
        painter.translate(path.pointAtPercent(share));
        painter.rotate(-path.angleAtPercent(share));
        painter.drawPolygon(
            QPolygonF{QPointF(size, 0), QPointF(-size, -0.65 * size), QPointF(-size, 0.65 * size)});
        painter.restore();
    }
    painter.setBrush(Qt::NoBrush);
}

} // namespace

bool DebriefLayer::isShown() const {
    return model.desk.isOpen() && !model.desk.choosesTask() && model.desk.attempt();
}

void DebriefLayer::layOut(const LayerPlace& place) {
    const Laid now{model.desk.revision(), place.frame.side, place.rotation, place.view.plot.mapRef,
                   place.view.plot.mapScaleTwips};
    if (now == laid)
        return;
    laid = now;
    MapView view = place.view; // a copy, as placing leaves traces in it
    const OnPaper onPaper = [&](const GeoPosition& position) {
        ChartPlace spot;
        view.placeOnChart(position, place.rotation, spot);
        return place.frame.at(spot.wide);
    };
    tracks =
        layOutTracks(*model.desk.attempt(), model.desk.compared(), chosenPart(model.desk), onPaper);
    layOutLegend(place);
}

std::vector<DebriefLayer::Entry> DebriefLayer::entries(double side) const {
    const StringTable& texts = model.boxes.texts;
    std::vector<Entry> all{{Swatch::own, attemptName(*model.desk.attempt(), texts), {}}};
    for (const Attempt& earlier : model.desk.compared())
        all.push_back({all.size() > 1 ? Swatch::earlierDashed : Swatch::earlier,
                       attemptName(earlier, texts),
                       {}});
    const Text outside = side < smallSide ? Text::debriefOutside : Text::debriefOutsideLimits;
    if (!tracks.outside.empty())
        all.push_back({Swatch::outside, textOf(texts, outside), {}});
    if (!tracks.task.empty()) {
        QString name = textOf(texts, Text::debriefReference);
        if (tracks.allowed)
            name = textOf(texts, Text::debriefReferenceWithin)
                       .arg(QString::fromStdString(
                           valueText(tracks.allowed->value, tracks.allowed->unit, texts)));
        all.push_back({Swatch::task, name, {}});
    }
    return all;
}

/// The legend stands between the scale bar and the north arrow.
void DebriefLayer::layOutLegend(const LayerPlace& place) {
    const double scale = place.frame.textScale;
    legend = entries(place.frame.side);
    const QFontMetricsF metrics(place.frame.smallFont);
    std::vector<double> widths;
    for (const Entry& entry : legend)
        widths.push_back((swatchWidth + swatchGap + entryGap) * scale +
                         metrics.horizontalAdvance(entry.name));
    const ScaleBar bar(place.frame, place.pixelsPerMile);
    const double left = std::max(bar.plate.right(), overlayInset * 1.0) + footInset * scale;
    const double right = NorthArrow(place.frame).plate.left;
    const std::vector<QRectF> boxes = flowOf(widths, left, right, 0, legendLine * scale);
    const double height = std::max(leastFoot * scale, boxes.back().bottom() + footInset * scale);
    footBox = {0, place.frame.side - height, place.frame.side, height};
    const double top = footBox.top + (height - boxes.back().bottom()) / 2;
    for (std::size_t i = 0; i < legend.size(); ++i)
        legend[i].box = boxes[i].translated(0, top);
}

Box DebriefLayer::foot(const LayerPlace& place) {
    layOut(place);
    return footBox;
}

/// What is allowed: along a line as wide as the needle's limits are there, along a curve all the
/// way.
void DebriefLayer::paintCorridors(QPainter& painter, double pixelsPerMile) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::onPaper(corridorInk, corridorOpacity));
    for (const QPolygonF& corridor : tracks.corridors)
        painter.drawPolygon(corridor);
    painter.setBrush(Qt::NoBrush);
    if (!tracks.allowed || tracks.allowed->unit != FindingUnit::nauticalMiles)
        return;
    painter.setPen(roundPen(look::onPaper(corridorInk, corridorOpacity),
                            2 * tracks.allowed->value * pixelsPerMile));
    for (const ChartTracks::TaskCurve& curve : tracks.task)
        if (curve.kind != TaskLineKind::line)
            painter.drawPolyline(curve.points);
}

void DebriefLayer::paintTask(QPainter& painter) const {
    painter.setBrush(Qt::NoBrush);
    for (const ChartTracks::TaskCurve& curve : tracks.task) {
        QPen pen = roundPen(taskInk, taskWidth);
        if (curve.kind == TaskLineKind::line) {
            pen.setWidthF(1.2);
            pen.setCapStyle(Qt::FlatCap);
            pen.setDashPattern({9, 4, 2, 4});
        }
        painter.setPen(pen);
        painter.drawPolyline(curve.points);
        if (curve.kind != TaskLineKind::line)
            paintArrows(painter, curve.points);
    }
}

void DebriefLayer::paintLines(QPainter& painter, const LayerPlace& place) {
    layOut(place);
    painter.setBrush(Qt::NoBrush);
    paintCorridors(painter, place.pixelsPerMile);
    paintTask(painter);
    for (std::size_t i = 0; i < tracks.earlier.size(); ++i) {
        painter.setPen(earlierPen(i));
        painter.drawPolyline(tracks.earlier[i]);
    }
    const bool part = !tracks.chosen.isEmpty();
    if (part) {
        painter.setPen(roundPen(look::faded(look::day.accent, haloOpacity), haloWidth));
        painter.drawPolyline(tracks.chosen);
    }
    painter.setPen(roundPen(ownInk, part ? otherWidth : ownWidth));
    painter.drawPolyline(tracks.own);
    if (part) {
        painter.setPen(roundPen(ownInk, ownWidth));
        painter.drawPolyline(tracks.chosen);
    }
    for (const QPolygonF& outside : tracks.outside)
        paintOutside(painter, outside, outsideInk, Qt::white, outsideWidth);
}

/// The finding's words, joined to the middle of what it speaks of.
void DebriefLayer::paintLettering(QPainter& painter, const LayerPlace& place,
                                  std::span<const Box> occupied) {
    constexpr double padding = 7;
    if (!model.desk.finding() || tracks.own.isEmpty())
        return;
    const Attempt& attempt = *model.desk.attempt();
    const Finding& finding = attempt.debrief.findings[*model.desk.finding()];
    const double scale = place.frame.textScale;
    const QFont font = look::font(look::denseType * scale, QFont::Bold);
    const QString said = QString::fromStdString(findingText(finding, model.boxes.texts))
                             .section(QStringLiteral(", "), 0, 0);
    const QRectF text = QFontMetricsF(font).boundingRect(QRectF(0, 0, place.frame.side * 0.45, 100),
                                                         Qt::TextWordWrap | Qt::AlignCenter, said);
    std::vector<Spot> track;
    for (const QPointF& spot : tracks.own)
        track.push_back({spot.x(), spot.y()});
    std::vector<Box> areas(occupied.begin(), occupied.end());
    areas.push_back(footBox);
    const Box sheet{0, 0, place.frame.side, footBox.top};
    const Callout callout = placeCallout(
        {tracks.place.x(), tracks.place.y()},
        {text.width() + 2 * padding * scale, text.height() + padding * scale}, sheet, areas, track);
    painter.setPen(QPen(look::day.accent, 1.2));
    painter.drawLine(toQt(callout.leader));
    painter.setPen(QPen(look::day.accent, 1.5));
    painter.setBrush(look::paper);
    painter.drawRoundedRect(toQt(callout.box), 4, 4);
    painter.setFont(font);
    painter.drawText(toQt(callout.box), Qt::AlignCenter | Qt::TextWordWrap, said);
}

void DebriefLayer::paintSwatch(QPainter& painter, Swatch swatch, QPointF from, QPointF to) const {
    switch (swatch) {
    case Swatch::own:
        painter.setPen(roundPen(ownInk, ownWidth));
        break;
    case Swatch::earlier:
    case Swatch::earlierDashed:
        painter.setPen(earlierPen(swatch == Swatch::earlierDashed ? 1 : 0));
        break;
    case Swatch::outside:
        return paintOutside(painter, {from, to}, outsideInk, Qt::white, outsideWidth);
    case Swatch::task:
        if (tracks.allowed)
            painter.fillRect(QRectF(from, to).adjusted(0, -6, 0, 6),
                             look::onPaper(corridorInk, 2 * corridorOpacity));
        painter.setPen(roundPen(taskInk, taskWidth));
        break;
    }
    painter.drawLine(from, to);
}

void DebriefLayer::paintFoot(QPainter& painter, const LayerPlace& place) {
    const QRectF foot = toQt(footBox);
    painter.fillRect(foot, look::paper);
    painter.setPen(QPen(look::day.hairline, 1));
    painter.drawLine(foot.topLeft(), foot.topRight());
    const double scale = place.frame.textScale;
    for (const Entry& entry : legend) {
        const QPointF from(entry.box.left(), entry.box.center().y());
        paintSwatch(painter, entry.swatch, from, from + QPointF(swatchWidth * scale, 0));
        painter.setFont(place.frame.smallFont);
        painter.setPen(look::day.ink);
        painter.drawText(entry.box.adjusted((swatchWidth + swatchGap) * scale, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter, entry.name);
    }
}

} // namespace tarnel
