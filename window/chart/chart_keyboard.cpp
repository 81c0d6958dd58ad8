#include "window/chart/chart_keyboard.h"

#include "core/station_geometry.h"
#include "look/look.h"
#include "paper/plates.h"
#include "window/chart/chart_view.h"
#include "window/chart/paper_shapes.h"
#include "window/chart/spoken_place.h"
#include "window/widgets/announce.h"
#include "window/widgets/quiet_key.h"
#include "window/widgets/text_of.h"

#include <QPainter>

namespace tarnel {

namespace {

constexpr double inset = 8; ///< of a text on its plate, px

} // namespace

ChartKeyboard::ChartKeyboard(UserControl2& simulation, const StringTable& table, ChartView& chart)
    : QObject(&chart),
      place(new QAction(&chart)),
      turn(new QAction(&chart)),
      sim(simulation),
      texts(table),
      view(chart),
      crosshair({.mouse = sim.mouse,
                 .aircraft = sim.aircraft,
                 .stations = sim.stations,
                 .view = sim.view,
                 .picture = sim.picture,
                 .wind = sim.wind,
                 .windSource = sim.windSource}) {
    view.setProperty(keyGroupProperty, textOf(texts, Text::keyOfChart));
    addDeeds();
    addSteps();
    addPlaces();
}

void ChartKeyboard::addDeeds() {
    place->setObjectName(QStringLiteral("placeByKeys"));
    place->setText(textOf(texts, Text::placeByKeys));
    place->setShortcut(Qt::CTRL | Qt::Key_1);
    turn->setObjectName(QStringLiteral("turnByKeys"));
    turn->setText(textOf(texts, Text::turnByKeys));
    turn->setShortcut(Qt::CTRL | Qt::Key_2);
    connect(place, &QAction::triggered, this, [this] {
        view.setFocus(Qt::ShortcutFocusReason);
        act([this] {
            crosshair.leave();
            crosshair.toAircraft();
            say(told());
        });
    });
    connect(turn, &QAction::triggered, this, [this] {
        view.setFocus(Qt::ShortcutFocusReason);
        act([this] { beginTurn(); });
    });
}

QAction* ChartKeyboard::add(Text name, std::initializer_list<QKeySequence> keys,
                            const std::function<void()>& deed) {
    auto* action = new QAction(textOf(texts, name), &view);
    action->setShortcuts(QList<QKeySequence>(keys));
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, deed] { act(deed); });
    view.addAction(action);
    return action;
}

void ChartKeyboard::addSteps() {
    static constexpr std::pair<Qt::Key, Way> ways[] = {{Qt::Key_Left, Way::left},
                                                       {Qt::Key_Right, Way::right},
                                                       {Qt::Key_Up, Way::up},
                                                       {Qt::Key_Down, Way::down}};
    static constexpr std::tuple<Qt::KeyboardModifier, Stride, Text> strides[] = {
        {Qt::NoModifier, Stride::usual, Text::crosshairStep},
        {Qt::ShiftModifier, Stride::large, Text::crosshairLargeStep},
        {Qt::ControlModifier, Stride::fine, Text::crosshairFineStep}};
    for (const auto& [with, stride, name] : strides)
        for (const auto& [key, way] : ways)
            add(name, {QKeySequence(with | key)},
                [this, way = way, stride = stride] { step(way, stride); });
}

void ChartKeyboard::addPlaces() {
    add(Text::crosshairNextStation, {Qt::Key_PageDown}, [this] {
        crosshair.toStation(1);
        say(told());
    });
    add(Text::crosshairPreviousStation, {Qt::Key_PageUp}, [this] {
        crosshair.toStation(-1);
        say(told());
    });
    add(Text::crosshairAircraft, {Qt::Key_Home}, [this] {
        if (crosshair.grip() == ChartCrosshair::Grip::none)
            crosshair.toAircraft();
        say(told());
    });
    add(Text::crosshairTelling, {Qt::Key_End}, [this] {
        crosshair.switchTelling();
        say(told());
    });
    pressing = add(Text::crosshairPress, {Qt::Key_Return, Qt::Key_Enter}, [this] { press(); });
    leaving = add(Text::crosshairLeave, {Qt::Key_Escape}, [this] { leave(); });
}

/// At rest, with north up, and while neither a question nor a debrief keeps the hand off.
bool ChartKeyboard::mayUse() const {
    return sim.mouse.windTool() ||
           (sim.view.northUpMode && sim.stopped() && !sim.placeIsSecret() && !view.isLayered());
}

void ChartKeyboard::act(const std::function<void()>& deed) {
    refused = false;
    view.guard([&] {
        if (mayUse())
            deed();
        else
            refuse();
    });
    view.refresh();
    refresh();
    view.update();
}

void ChartKeyboard::step(Way way, Stride stride) {
    crosshair.step(way, stride);
    say(wordsOf(crosshair.grip()));
}

void ChartKeyboard::press() {
    using Grip = ChartCrosshair::Grip;
    const Grip before = crosshair.grip();
    const bool wasShown = crosshair.shown();
    if (!crosshair.press())
        return refuse();
    if (before != Grip::none)
        return say(textOf(texts, Text::crosshairLetGo).arg(wordsOf(before)));
    switch (crosshair.grip()) {
    case Grip::station:
        return say(textOf(texts, Text::crosshairHoldsStation).arg(nameOf(crosshair.station())));
    case Grip::wind:
        return say(textOf(texts, Text::crosshairHoldsWind).arg(wordsOf(Grip::wind)));
    default:
        say(wasShown ? textOf(texts, Text::crosshairPlaced).arg(told()) : told());
    }
}

void ChartKeyboard::leave() {
    const bool held = holds();
    crosshair.leave();
    say(textOf(texts, held ? Text::crosshairPutBack : Text::crosshairGone));
}

void ChartKeyboard::beginTurn() {
    if (crosshair.turn())
        say(textOf(texts, Text::crosshairHoldsHeading).arg(wordsOf(crosshair.grip())));
    else
        refuse();
}

void ChartKeyboard::say(const QString& words) {
    lastWords = words;
    announce(view, words);
}

void ChartKeyboard::refuse() {
    refused = true;
    say(textOf(texts, Text::crosshairRefused));
}

QString ChartKeyboard::nameOf(Slot station) const {
    return QString::fromStdString(sim.slot(station).name);
}

QString ChartKeyboard::told() const {
    const std::optional<Slot> from = crosshair.toldFrom();
    if (!from)
        return spokenPosition(crosshair.position(), texts);
    const Polar seen = crosshair.seenFrom(*from);
    return textOf(texts, Text::crosshairFromStation)
        .arg(QString::fromStdString(threeDigits(seen.course)),
             QString::number(seen.distance, 'f', 1), nameOf(*from));
}

QString ChartKeyboard::wordsOf(ChartCrosshair::Grip grip) const {
    if (grip == ChartCrosshair::Grip::heading)
        return textOf(texts, Text::spokenHeading)
            .arg(QString::fromStdString(threeDigits(sim.aircraft.trueHeading)));
    if (grip == ChartCrosshair::Grip::wind)
        return textOf(texts, Text::spokenWind)
            .arg(QString::fromStdString(threeDigits(sim.wind.direction)))
            .arg(sim.wind.speed);
    return told();
}

void ChartKeyboard::refresh() {
    const bool tool = sim.mouse.windTool();
    if (tool && !windTool && !sim.mouse.holds()) {
        view.setFocus(Qt::OtherFocusReason);
        say(textOf(texts, Text::crosshairMayDrawWind));
    }
    windTool = tool;
    const bool may = mayUse();
    if (!may && crosshair.shown()) {
        crosshair.hide();
        view.update();
    }
    const bool active = crosshair.shown() || holds();
    pressing->setEnabled(may);
    leaving->setEnabled(active || tool);
    for (QAction* action : {place, turn})
        action->setEnabled(may && !tool);
}

void ChartKeyboard::pointerComes() {
    crosshair.hide();
    refresh();
}

void ChartKeyboard::keyboardGoes() {
    refused = false;
    view.guard([this] { crosshair.letGo(); });
    refresh();
    view.update();
}

std::optional<Slot> ChartKeyboard::stationUnder() const {
    return crosshair.shown() ? sim.mouse.stationAt(crosshair.place()) : std::nullopt;
}

void ChartKeyboard::paint(QPainter& painter, double side, double devicePixelRatio) const {
    constexpr double fromBelow = 64; // above the scale bar
    const PaperFrame frame(side, sim.picture.size, devicePixelRatio);
    painter.setFont(look::font(look::denseType * frame.textScale, QFont::Bold));
    if (crosshair.shown())
        return paintCrosshair(painter, frame);
    if (!refused && !holds() && !(sim.mouse.windTool() && view.hasFocus()))
        return;
    const double width = side - 2 * overlayInset - 2 * inset;
    const QFontMetricsF metrics(painter.font(), painter.device());
    const QRectF words = metrics.boundingRect(
        QRectF(overlayInset + inset, 0, width, side - fromBelow * frame.textScale),
        Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, lastWords);
    paintPlate(painter, words.adjusted(-inset, -inset / 2, inset, inset / 2), lastWords);
}

/// A cross with a free middle, on a white rim so that it is seen on anything, and the place on a
/// plate beside it.
void ChartKeyboard::paintCrosshair(QPainter& painter, const PaperFrame& frame) const {
    constexpr double arm = 16;
    constexpr double free = 4;
    const Point cross = crosshair.place();
    const QPointF at = toQt(frame.spot(cross));
    for (const auto& [colour, width] : {std::pair(look::paper, 5.0), {look::day.accent, 2.0}}) {
        painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::FlatCap));
        for (const QPointF way : {QPointF(1, 0), {-1, 0}, {0, 1}, {0, -1}})
            painter.drawLine(at + way * free, at + way * arm);
    }
    const QString words = told();
    const QFontMetricsF metrics(painter.font(), painter.device());
    const double aside = arm / frame.pixelsPerTwip;
    paintPlate(painter,
               toQt(plateBesidePointer(
                   frame, {cross.x + aside, cross.y + aside},
                   {metrics.horizontalAdvance(words) + 2 * inset, metrics.height() + inset})),
               words);
}

void ChartKeyboard::paintPlate(QPainter& painter, const QRectF& plate, const QString& text) const {
    painter.setPen(QPen(look::day.accent, 1));
    painter.setBrush(look::day.card);
    painter.drawRoundedRect(plate, look::controlRadius, look::controlRadius);
    painter.setPen(look::day.ink);
    painter.drawText(plate.adjusted(inset, 0, -inset, 0), Qt::AlignCenter | Qt::TextWordWrap, text);
}

} // namespace tarnel
