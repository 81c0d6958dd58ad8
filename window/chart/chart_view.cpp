#include "window/chart/chart_view.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "core/station_geometry.h"
#include "look/look.h"
#include "panel/signal_name.h"
#include "paper/plates.h"
#include "window/chart/chart_keyboard.h"
#include "window/chart/reference_lamps.h"
#include "window/chart/spoken_place.h"
#include "window/widgets/ground_around.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace tarnel {

namespace {

constexpr int wheelNotch = 120;

ChartButton chartButton(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return ChartButton::left;
    case Qt::RightButton:
        return ChartButton::right;
    default:
        return ChartButton::other;
    }
}

} // namespace

ChartView::ChartView(UserControl2& simulation, const StringTable& table, QWidget* parent)
    : QWidget(parent), sim(simulation), texts(table), painter(simulation, table) {
    lamps = new ReferenceLamps(sim, texts, this);
    keys = new ChartKeyboard(sim, texts, *this);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSpokenRole(*this, QAccessible::Canvas);
    setSpokenName(*this, spokenChart());
    showCursor();
}

void ChartView::refresh() {
    showCursor();
    keys->refresh();
    if (isLayered())
        lamps->hide();
    else
        lamps->refresh();
    speak();
    const std::uint64_t layerRevision = layer ? layer->revision() : 0;
    if (shownRevision == sim.picture.surface.revision() && shownLayer == layerRevision)
        return;
    shownRevision = sim.picture.surface.revision();
    shownLayer = layerRevision;
    update();
}

/// The words are renewed even where a painting has come first; while nobody listens, only when the
/// aircraft's place becomes a secret or is one no longer.
void ChartView::speak() {
    const std::pair now(sim.picture.surface.revision(), sim.placeIsSecret());
    if (now == spoken || (!QAccessible::isActive() && now.second == spoken.second))
        return;
    spoken = now;
    setSpokenName(*this, spokenChart());
}

QString ChartView::spokenChart() const {
    if (hidesAircraft())
        return textOf(texts, Text::spokenChartHidden);
    const GeoPosition at = sim.aircraft.published();
    const auto heading = static_cast<std::int64_t>(roundToEven(sim.aircraft.trueHeading)) % 360;
    return textOf(texts, Text::spokenChart)
        .arg(spokenPosition(at, texts), QString::fromStdString(zeroPadded(heading, 3)));
}

QString ChartView::spokenStations() const {
    if (hidesAircraft())
        return {};
    QStringList stations;
    for (std::size_t i = 0; i < slotCount; ++i) {
        const auto slot = static_cast<Slot>(i);
        const StationSymbol& symbol = sim.picture.symbols[i];
        if (!symbol.visible || symbol.image == SymbolImage::none)
            continue;
        const FromStation seen =
            fromStation(toPlain(sim.stations[i].position), sim.aircraft.published());
        stations << textOf(texts, Text::crosshairFromStation)
                        .arg(QString::fromStdString(threeDigits(seen.radial)),
                             QString::number(seen.distance, 'f', 1),
                             textOf(texts, signalName(slot)) + QLatin1Char(' ') +
                                 QString::fromStdString(sim.slot(slot).name));
    }
    return stations.join(QStringLiteral(", "));
}

/// Also called for a part alone, when something that lies over the chart paints again: what is to
/// be seen is noted where the whole chart is asked to paint.
void ChartView::paintEvent(QPaintEvent* /*event*/) {
    QPainter onWidget(this);
    fillAround(onWidget, *this, side(), look::paperRadius, look::colours().desktop);
    painter.paint(onWidget, side(), devicePixelRatioF());
    keys->paint(onWidget, side(), devicePixelRatioF());
    if (!hasFocus())
        return;
    constexpr double ring = 2;
    constexpr double inset = ring / 2;
    onWidget.setPen(QPen(look::day.accent, ring));
    onWidget.setBrush(Qt::NoBrush);
    onWidget.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                             look::paperRadius, look::paperRadius);
}

void ChartView::resizeEvent(QResizeEvent* /*event*/) {
    const PaperFrame frame(side(), sim.picture.size, devicePixelRatioF());
    lamps->setGeometry(toQt(lampsPlate(frame)).toAlignedRect());
}

void ChartView::showCursor() {
    const bool overStation = pointer && stationAt(*pointer);
    const bool canAct = sim.view.northUpMode && (sim.stopped() || sim.mouse.windTool());
    const Qt::CursorShape wanted = overStation ? Qt::PointingHandCursor
                                   : canAct    ? Qt::CrossCursor
                                               : Qt::ArrowCursor;
    if (wanted != shownCursor)
        setCursor(wanted);
    shownCursor = wanted;
}

Point ChartView::toTwips(QPointF at) const {
    const double twipsPerPixel = sim.picture.size / std::max(1.0, side());
    return {at.x() * twipsPerPixel, at.y() * twipsPerPixel};
}

bool ChartView::mayEdit() const {
    return sim.c_mapedit == 1 && sim.view.northUpMode && sim.stopped() && !sim.mouse.windTool();
}

/// The station that can be dragged and edited there.
std::optional<Slot> ChartView::stationAt(QPointF at) const {
    return mayEdit() ? sim.mouse.stationAt(toTwips(at)) : std::nullopt;
}

void ChartView::mousePressEvent(QMouseEvent* event) {
    const std::optional<Slot> station = stationAt(event->position());
    if (event->button() == Qt::RightButton && station && onStationMenu)
        return onStationMenu(station, event->globalPosition().toPoint());
    keys->pointerComes();
    hold.begin();
    guard([&] { sim.mouse.down(chartButton(event->button()), toTwips(event->position())); });
    watchKeys();
    refresh();
}

void ChartView::watchKeys() {
    qApp->removeEventFilter(this);
    if (sim.mouse.holds())
        qApp->installEventFilter(this);
}

bool ChartView::eventFilter(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!key || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape || !sim.mouse.holds())
        return QWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress) {
        guard([this] { sim.mouse.takeBack(); });
        watchKeys();
        refresh();
    }
    return true;
}

void ChartView::mouseDoubleClickEvent(QMouseEvent* event) {
    const std::optional<Slot> station = stationAt(event->position());
    if (event->button() != Qt::LeftButton || !station || !onEditStation)
        return mousePressEvent(event);
    guard([&] { sim.mouse.takeBackDrag(); });
    onEditStation(*station);
}

/// The mouse's part is done when its button goes down.
void ChartView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard && mayEdit() && onStationMenu)
        onStationMenu(keys->stationUnder(), event->globalPos());
}

/// A menu or another window only borrows the keyboard.
void ChartView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::MenuBarFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason)
        keys->keyboardGoes();
}

void ChartView::leaveEvent(QEvent* /*event*/) {
    pointer.reset();
}

void ChartView::mouseMoveEvent(QMouseEvent* event) {
    pointer = event->position();
    if (keys->holds())
        return;
    guard([&] { sim.mouse.move(toTwips(event->position())); });
    refresh();
}

void ChartView::mouseReleaseEvent(QMouseEvent* /*event*/) {
    hold.end();
    letGo();
}

void ChartView::letGo() {
    guard([&] { sim.mouse.up(); });
    watchKeys();
    refresh();
}

void ChartView::wheelEvent(QWheelEvent* event) {
    wheelRest += event->angleDelta().y();
    const int notches = wheelRest / wheelNotch;
    wheelRest -= notches * wheelNotch;
    if (notches != 0 && onZoom)
        onZoom(notches);
    event->accept();
}

} // namespace tarnel
