#include "window/debrief/plot_view.h"

#include "instruments/digit_readout.h"
#include "look/panel_look.h"
#include "shell/finding_text.h"
#include "window/debrief/finding_rows.h"
#include "window/debrief/plot_painter.h"
#include "window/widgets/picture_store.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <optional>

namespace tarnel {

namespace {

constexpr int samplesPerMinute = 45; ///< a page
constexpr double readoutDigits = 24; ///< px high
constexpr double cellWidthPerHeight =
    static_cast<double>(look::digits::cellWidth) / look::digits::figureHeight;
constexpr double cellHeightPerHeight =
    static_cast<double>(look::digits::cellHeight) / look::digits::figureHeight;
constexpr double pointCells = 0.26;

QString pictureOf(QChar character) {
    const int number = character.isDigit() ? character.digitValue() + 1 : DigitReadout::dashPicture;
    return QStringLiteral("digit_green_%1.png").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

PlotScene plotScene(const DebriefDesk& desk) {
    PlotScene scene;
    if (!desk.isOpen() || desk.choosesTask() || !desk.attempt())
        return scene;
    const Attempt& attempt = *desk.attempt();
    scene.own = &attempt.debrief;
    scene.samples = static_cast<int>(attempt.samples.size());
    scene.startSeconds = secondsAt(attempt, 0);
    for (const Attempt& earlier : desk.compared())
        scene.earlier.push_back(&earlier.debrief);
    scene.chosen = chosenPart(desk);
    return scene;
}

std::optional<SampleSpan> chosenPart(const DebriefDesk& desk) {
    constexpr double aboutAll = 0.9;
    if (!desk.attempt() || !desk.finding())
        return {};
    const SampleSpan part = desk.attempt()->debrief.findings[*desk.finding()].samples;
    const auto all = static_cast<double>(desk.attempt()->samples.size());
    return part.last - part.first < aboutAll * all ? std::optional(part) : std::nullopt;
}

PlotView::PlotView(const DebriefModel& debriefModel, PictureStore& store, QWidget* parent)
    : QWidget(parent), model(debriefModel), pictures(store) {
    setObjectName(QStringLiteral("DebriefPlotView"));
    setFocusPolicy(Qt::StrongFocus);
    setSpokenRole(*this, QAccessible::Chart);
    setSpokenName(*this, textOf(model.boxes.texts, Text::debriefOverTime));
}

void PlotView::setScale(double moduleScale) {
    scale = moduleScale;
    update();
}

void PlotView::layOut() {
    const Shown now{model.desk.revision(), size(), scale, devicePixelRatioF()};
    if (now == shown)
        return;
    shown = now;
    scene = plotScene(model.desk);
    layout = layOutPlot(scene, size(), scale);
    still = QPixmap(size() * devicePixelRatioF());
    still.setDevicePixelRatio(devicePixelRatioF());
    still.fill(Qt::transparent);
    QPainter painter(&still);
    PlotPainter(layout, scene, model.boxes.texts, panelColours(), scale).paint(painter);
}

const PlotLayout& PlotView::laidOut() {
    layOut();
    return layout;
}

void PlotView::refresh() {
    if (shown.revision == model.desk.revision() && shownMoment == model.desk.moment())
        return;
    update();
    speak();
}

/// The words follow the moment only while somebody listens.
void PlotView::speak() {
    if (!QAccessible::isActive() || !model.desk.attempt())
        return;
    const Attempt& attempt = *model.desk.attempt();
    const auto last = static_cast<int>(attempt.samples.size()) - 1;
    QString words = textOf(model.boxes.texts, Text::debriefPlotSpoken)
                        .arg(timeAt(attempt, model.desk.moment()), timeAt(attempt, last));
    for (const PlotRow& row : laidOut().rows) {
        const PlotReading reading =
            readingOf(*row.series, row.valueAt(model.desk.moment()), model.boxes.texts);
        words += QStringLiteral(", ") + textOf(model.boxes.texts, nameOf(row.series->kind)) +
                 QLatin1Char(' ') + reading.digits + QLatin1Char(' ') + reading.unit;
    }
    setSpokenName(*this, words);
}

void PlotView::paintEvent(QPaintEvent* /*event*/) {
    layOut();
    shownMoment = model.desk.moment();
    QPainter painter(this);
    painter.drawPixmap(0, 0, still);
    if (scene.own && model.desk.attempt()) {
        PlotPainter(layout, scene, model.boxes.texts, panelColours(), scale)
            .paintCursor(painter, shownMoment, timeAt(*model.desk.attempt(), shownMoment));
        paintReadouts(painter);
    }
    if (!hasFocus())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::panelFocus, 2));
    painter.setBrush(Qt::NoBrush);
    const QRectF around(layout.phases.topLeft(), layout.axis.topRight());
    painter.drawRoundedRect(around.adjusted(1, 1, -1, -1), 3, 3);
}

void PlotView::paintReadouts(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const PlotRow& row : layout.rows)
        paintReadout(painter, row);
}

/// The digits in a well, the unit below them or, in a low row, at their right.
void PlotView::paintReadout(QPainter& painter, const PlotRow& row) {
    constexpr double inset = 6;
    painter.setPen(QPen(panelColours().edge, 1));
    painter.setBrush(look::digitWell);
    painter.drawRoundedRect(row.readout, 4, 4);
    const PlotReading reading = readingOf(*row.series, row.valueAt(shownMoment), model.boxes.texts);
    const QRectF room = row.readout.adjusted(inset * scale, 4 * scale, -inset * scale, -3 * scale);
    const double unitHeight = 14 * scale;
    const bool showsUnit = room.height() > unitHeight + 16 * scale;
    const QRectF digits = showsUnit ? room.adjusted(0, 0, 0, -unitHeight) : room;
    paintDigits(painter, reading.digits, digits);
    if (!showsUnit)
        return;
    painter.setFont(look::font(look::unitType * scale));
    painter.setPen(look::unit);
    painter.drawText(QRectF(room.left(), room.bottom() - unitHeight, room.width(), unitHeight),
                     Qt::AlignRight | Qt::AlignVCenter, reading.unit);
}

void PlotView::paintDigits(QPainter& painter, const QString& digits, const QRectF& room) {
    const bool point = digits.contains(QLatin1Char('.'));
    const double cells = static_cast<double>(digits.size()) - (point ? 1 - pointCells : 0);
    const double high = std::min({readoutDigits * scale, room.height() / cellHeightPerHeight,
                                  room.width() / (cells * cellWidthPerHeight)});
    const QSizeF cell(high * cellWidthPerHeight, high * cellHeightPerHeight);
    QPointF corner(room.right() - cells * cell.width(), room.center().y() - cell.height() / 2);
    for (const QChar character : digits) {
        if (character == QLatin1Char('.')) {
            const double radius = high * look::digits::strokeShare / 2;
            painter.setPen(Qt::NoPen);
            painter.setBrush(look::measured);
            painter.drawEllipse(corner + QPointF(cell.width() * pointCells / 3,
                                                 (cell.height() + high) / 2 - radius),
                                radius, radius);
            corner.rx() += cell.width() * pointCells;
            continue;
        }
        drawPicture(painter, pictures, pictureOf(character), {corner, cell});
        corner.rx() += cell.width();
    }
}

void PlotView::goTo(int sample) {
    guard([&] { model.desk.goTo(sample); });
    refresh();
}

void PlotView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || laidOut().samples == 0)
        return;
    hold.begin();
    dragging = true;
    goTo(layout.sampleAt(event->position().x()));
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
    if (dragging)
        goTo(layout.sampleAt(event->position().x()));
}

void PlotView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    hold.end();
    dragging = false;
}

void PlotView::keyPressEvent(QKeyEvent* event) {
    const int moment = model.desk.moment();
    const int last = std::max(0, laidOut().samples - 1);
    std::optional<int> wanted;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        wanted = moment - 1;
        break;
    case Qt::Key_Right:
    case Qt::Key_Up:
        wanted = moment + 1;
        break;
    case Qt::Key_PageUp:
        wanted = moment + samplesPerMinute;
        break;
    case Qt::Key_PageDown:
        wanted = moment - samplesPerMinute;
        break;
    case Qt::Key_Home:
        wanted = 0;
        break;
    case Qt::Key_End:
        wanted = last;
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    goTo(std::clamp(*wanted, 0, last));
}

} // namespace tarnel
