#include "window/dials/instrument_view.h"

#include "core/angle.h"
#include "look/panel_look.h"
#include "window/widgets/ground_around.h"
#include "window/widgets/knob_drawing.h"
#include "window/widgets/spoken.h"
#include "window/widgets/text_of.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace tarnel {

namespace {

Qt::CursorShape cursorOver(InstrumentArea area, bool pressed) {
    switch (area) {
    case InstrumentArea::obsKnob:
    case InstrumentArea::headingBugKnob:
        return Qt::SizeHorCursor;
    case InstrumentArea::selector:
        return Qt::PointingHandCursor;
    case InstrumentArea::card:
    case InstrumentArea::headingBug:
        return pressed ? Qt::ClosedHandCursor : Qt::OpenHandCursor;
    case InstrumentArea::none:
        break;
    }
    return Qt::ArrowCursor;
}

/// Flight moves the needles many times a second; nobody hears so fast.
constexpr int millisecondsAReading = 1000;

/// Over nothing that a release could click.
constexpr Point offTheFace{-1, -1};

} // namespace

InstrumentView::InstrumentView(UserControl_1& control, PictureStore& store,
                               const StringTable& table, QWidget* parent)
    : QWidget(parent),
      instrument(control),
      pictures(store),
      texts(table),
      instrumentPainter(store),
      areas(control.picture),
      hold(*this, [this] { letGo(offTheFace); }) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    betweenReadings.setSingleShot(true);
    betweenReadings.setInterval(millisecondsAReading);
    connect(&betweenReadings, &QTimer::timeout, this, [this] { speak(); });
    shown = present();
    speak();
}

QSize InstrumentView::sizeHint() const {
    constexpr int side = 344;
    return {side, side};
}

void InstrumentView::setGround(const QBrush& around) {
    ground = around;
    setAttribute(Qt::WA_OpaquePaintEvent);
    update();
}

InstrumentView::Shown InstrumentView::present() const {
    return {instrument.picture.surface.revision(), instrument.Display, instrument.c_HDGbug,
            instrument.c_MouseOBS, stations ? stations() : SpokenStations{}};
}

void InstrumentView::refresh() {
    const Shown now = present();
    if (now == shown)
        return;
    shown = now;
    keepFocusUsable();
    if (!betweenReadings.isActive())
        speak();
    update();
}

QString InstrumentView::spoken() const {
    if (isHidden())
        return {};
    QString reading = QString::fromStdString(spokenReading(instrument, shown.stations, texts));
    const QString knob = knobName(focusedArea());
    return knob.isEmpty() ? reading : knob + QStringLiteral(", ") + reading;
}

/// Tells who listens that there is another reading.
void InstrumentView::speak() {
    setSpokenName(*this, textOf(texts, spokenKind(instrument.Display)));
    if (!QAccessible::isActive())
        return;
    const QString now = spoken();
    if (now == said)
        return;
    said = now;
    betweenReadings.start();
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void InstrumentView::showEvent(QShowEvent* /*event*/) {
    shown = present();
    speak();
}

void InstrumentView::hideEvent(QHideEvent* /*event*/) {
    if (isHidden())
        speak();
}

Point InstrumentView::twipsAt(QPointF at) const {
    const double twips = instrument.picture.size / std::max(side(), 1.0);
    return {at.x() * twips, at.y() * twips};
}

void InstrumentView::change(const std::function<void()>& action) {
    guard(action);
    refresh();
    speak();
}

void InstrumentView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    fillAround(painter, *this, side(), side() * look::bezelRadiusShare, ground);
    instrumentPainter.paint(painter, instrument.picture, side());
    paintKnobs(painter);
    paintSelector(painter);
}

void InstrumentView::paintKnobs(QPainter& painter) {
    constexpr double fullCircle = 360;
    const double radius = InstrumentAreas::knobRadius(side());
    for (const auto knob : {InstrumentArea::obsKnob, InstrumentArea::headingBugKnob}) {
        if (!areas.visible(knob))
            continue;
        KnobLook knobLook;
        knobLook.pointer = knob == InstrumentArea::obsKnob
                               ? fullCircle - instrument.c_MouseOBS
                               : static_cast<double>(instrument.c_HDGbug);
        knobLook.hovered = hovered == knob || pressed == knob;
        knobLook.pressed = pressed == knob;
        knobLook.focused = ringedArea() == knob;
        knobLook.dimmed = !areas.usable(knob);
        paintKnob(painter, pictures, InstrumentAreas::knobCentre(knob, side()), radius, knobLook);
    }
}

void InstrumentView::paintSelector(QPainter& painter) {
    constexpr double roundingShare = 0.012;
    constexpr double focusShare = 0.006;
    constexpr double hoverShare = 0.004;
    constexpr double light = 0.10;
    constexpr double shade = 0.25;
    constexpr double dim = 0.45;
    constexpr auto area = InstrumentArea::selector;
    const QRectF keys = InstrumentAreas::selectorKeys(side());
    const double rounding = side() * roundingShare;
    if (!areas.visible(area))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (!areas.usable(area))
        painter.setBrush(look::faded(look::bezelTop, dim));
    else if (pressed == area)
        painter.setBrush(look::faded(Qt::black, shade));
    else
        painter.setBrush(look::faded(Qt::white, hovered == area ? light : 0));
    painter.drawRoundedRect(keys, rounding, rounding);
    painter.setBrush(Qt::NoBrush);
    if (ringedArea() == area)
        painter.setPen(QPen(look::panelFocus, std::max(2.0, side() * focusShare)));
    else if (hovered == area)
        painter.setPen(QPen(look::panelAccent, std::max(1.0, side() * hoverShare)));
    painter.drawRoundedRect(keys, rounding, rounding);
}

void InstrumentView::mousePressEvent(QMouseEvent* event) {
    hold.begin();
    change([this, event] { pressed = instrument.mouse.down(twipsAt(event->position())); });
    showRing(false);
    if (areas.usable(pressed))
        focusArea(pressed);
    setCursor(cursorOver(pressed, true));
    update();
}

void InstrumentView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton) {
        hover(event->position());
        return;
    }
    change([this, event] {
        instrument.mouse.move(twipsAt(event->position()), turningButton(event->buttons()));
    });
}

void InstrumentView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() != Qt::NoButton)
        return;
    hold.end();
    letGo(twipsAt(event->position()));
    hover(event->position());
}

void InstrumentView::letGo(Point at) {
    change([this, at] { instrument.mouse.up(at); });
    pressed = InstrumentArea::none;
    update();
}

void InstrumentView::mouseDoubleClickEvent(QMouseEvent* event) {
    hold.begin();
    change([this, event] { instrument.mouse.doubleClick(twipsAt(event->position())); });
}

void InstrumentView::wheelEvent(QWheelEvent* event) {
    const InstrumentArea area = instrument.mouse.areaAt(twipsAt(event->position()));
    if (area == InstrumentArea::none) {
        event->ignore();
        return;
    }
    const int steps = notches.take(*event);
    if (steps != 0)
        change([this, area, steps] { instrument.mouse.stepKnob(area, steps); });
    event->accept();
}

void InstrumentView::hover(QPointF at) {
    setHovered(rect().contains(at.toPoint()) ? instrument.mouse.areaAt(twipsAt(at))
                                             : InstrumentArea::none);
}

void InstrumentView::setHovered(InstrumentArea area) {
    setCursor(cursorOver(area, false));
    if (area == hovered)
        return;
    hovered = area;
    update();
}

void InstrumentView::leaveEvent(QEvent* /*event*/) {
    setHovered(InstrumentArea::none);
}

InstrumentArea InstrumentView::focusedArea() const {
    return hasFocus() ? focused : InstrumentArea::none;
}

void InstrumentView::focusArea(InstrumentArea area) {
    if (focused == area)
        return;
    focused = area;
    speak();
    update();
}

InstrumentArea InstrumentView::ringedArea() const {
    return ringShown ? focusedArea() : InstrumentArea::none;
}

void InstrumentView::showRing(bool show) {
    if (ringShown == show)
        return;
    ringShown = show;
    update();
}

void InstrumentView::keepFocusUsable() {
    if (!areas.usable(focused))
        focused = areas.next(InstrumentArea::none, true);
}

void InstrumentView::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::TabFocusReason)
        focused = areas.next(InstrumentArea::none, true);
    else if (event->reason() == Qt::BacktabFocusReason)
        focused = areas.next(InstrumentArea::none, false);
    ringShown = cameByKeyboard(*event);
    keepFocusUsable();
    speak();
    update();
}

void InstrumentView::focusOutEvent(QFocusEvent* /*event*/) {
    update();
}

bool InstrumentView::focusNextPrevChild(bool next) {
    const InstrumentArea area =
        areas.usable(focused) ? areas.next(focused, next) : InstrumentArea::none;
    if (area == InstrumentArea::none)
        return QWidget::focusNextPrevChild(next);
    focusArea(area);
    return true;
}

void InstrumentView::keyPressEvent(QKeyEvent* event) {
    showRing(true);
    const bool sideways = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (const auto steps = stepsOfKey(*event)) {
        turnKnob(focused, *steps);
    } else if (sideways) {
        const InstrumentArea area = areas.next(focused, event->key() == Qt::Key_Right);
        if (area != InstrumentArea::none)
            focusArea(area);
    } else if (isClickKey(*event)) {
        clickKnob(focused);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void InstrumentView::turnKnob(InstrumentArea knob, int steps) {
    change([this, knob, steps] { instrument.mouse.stepKnob(knob, steps); });
}

void InstrumentView::clickKnob(InstrumentArea knob) {
    if (knob == InstrumentArea::selector)
        turnKnob(knob, 1);
    else if (knob == InstrumentArea::headingBugKnob)
        change([this, knob] { instrument.mouse.doubleClick(areas.middle(knob)); });
}

std::vector<InstrumentArea> InstrumentView::knobs() const {
    std::vector<InstrumentArea> all{InstrumentArea::obsKnob, InstrumentArea::headingBugKnob,
                                    InstrumentArea::selector};
    std::erase_if(all, [this](InstrumentArea knob) { return isHidden() || !areas.visible(knob); });
    return all;
}

QString InstrumentView::knobName(InstrumentArea knob) const {
    switch (knob) {
    case InstrumentArea::obsKnob:
        return textOf(texts,
                      instrument.showsCourse() ? Text::spokenCourseKnob : Text::spokenCardKnob);
    case InstrumentArea::headingBugKnob:
        return textOf(texts, Text::spokenHeadingBugKnob);
    case InstrumentArea::selector:
        return textOf(texts, Text::spokenReceiverSelector);
    default:
        return {};
    }
}

QRect InstrumentView::knobPlace(InstrumentArea knob) const {
    if (knob == InstrumentArea::selector)
        return InstrumentAreas::selectorKeys(side()).toAlignedRect();
    const double radius = InstrumentAreas::knobRadius(side());
    const QPointF reach(radius, radius);
    const QPointF centre = InstrumentAreas::knobCentre(knob, side());
    return QRectF(centre - reach, centre + reach).toAlignedRect();
}

KnobTravel InstrumentView::knobTravel(InstrumentArea knob) const {
    constexpr double lastDegree = 359;
    constexpr double circle = lastDegree + 1;
    if (isHidden() || knob == InstrumentArea::selector)
        return {};
    const InstrumentReading reading = instrument.reading();
    double value = instrument.c_HDGbug;
    if (knob == InstrumentArea::obsKnob)
        value = instrument.showsCourse() ? reading.course : reading.cardHeading;
    return {.value = std::fmod(intoCircle(value), circle),
            .most = lastDegree,
            .step = 1,
            .round = true};
}

QString InstrumentView::tipOf(InstrumentArea area) const {
    switch (area) {
    case InstrumentArea::obsKnob:
    case InstrumentArea::card:
        return textOf(texts, Text::knobTip) + QLatin1Char('\n') + textOf(texts, Text::knobHandsTip);
    case InstrumentArea::headingBugKnob:
    case InstrumentArea::headingBug:
        return textOf(texts, Text::headingBugTip) + QLatin1Char('\n') +
               textOf(texts, Text::knobHandsTip) + QLatin1Char('\n') +
               textOf(texts, Text::presentHeadingTip);
    case InstrumentArea::selector:
        return textOf(texts, Text::receiverSelectorTip);
    case InstrumentArea::none:
        break;
    }
    return {};
}

bool InstrumentView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tipOf(instrument.mouse.areaAt(twipsAt(help->pos()))),
                       this);
    return true;
}

} // namespace tarnel
