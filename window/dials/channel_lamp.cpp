#include "window/dials/channel_lamp.h"

#include "look/panel_look.h"

#include <QPainter>
#include <QRadialGradient>
#include <QStyleOption>

#include <algorithm>

namespace tarnel {

namespace {

// Shares of the lamp's height.
constexpr double lensShare = 0.42;
constexpr double haloShare = 1.0;
constexpr double insetShare = 0.3;
constexpr double letteringShare = 0.5;

constexpr double haloStrength = 0.35;
constexpr double lensShade = 0.55;

} // namespace

ChannelLamp::ChannelLamp(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void ChannelLamp::setLit(bool shines) {
    if (lit == shines)
        return;
    lit = shines;
    update();
}

/// Kept, since the dial below it turns its needles many times a second.
void ChannelLamp::paintEvent(QPaintEvent* /*event*/) {
    QStyleOption option;
    option.initFrom(this);
    option.state.setFlag(QStyle::State_Sunken, isDown());
    QPainter painter(this);
    kept.paint(painter, rect(), {option.state, text(), lit},
               [this](QPainter& face) { paintFace(face); });
}

/// A lens and its word in a well: it tells, and looks less like a key than like an annunciator.
void ChannelLamp::paintFace(QPainter& painter) const {
    const double high = height();
    const double round = high * insetShare;
    const QRectF well = rect().toRectF().adjusted(0.5, 0.5, -0.5, -0.5);
    const QColor light =
        isEnabled() ? look::measured
                    : look::over(look::digitWell, look::measured, look::switchedOffOpacity);
    const QColor edge = hasFocus()     ? look::panelFocus
                        : !isEnabled() ? look::bezelTop
                        : underMouse() ? look::unit
                                       : look::bezelTop.lighter(125);
    painter.setPen(QPen(edge, hasFocus() ? 2 : 1));
    painter.setBrush(isDown() ? look::panelBottom : look::digitWell);
    painter.drawRoundedRect(well, round, round);

    const double lens = high * lensShare;
    const QPointF at(well.left() + high * insetShare + lens / 2, well.center().y());
    painter.setPen(Qt::NoPen);
    if (lit && isEnabled()) {
        QRadialGradient halo(at, high * haloShare / 2);
        halo.setColorAt(0, look::faded(look::measured, haloStrength));
        halo.setColorAt(1, look::faded(look::measured, 0));
        painter.setBrush(halo);
        painter.drawEllipse(at, high * haloShare / 2, high * haloShare / 2);
    }
    painter.setBrush(lit ? light : look::faded(look::dimCaption, lensShade));
    painter.drawEllipse(at, lens / 2, lens / 2);

    painter.setFont(look::font(
        std::max<double>(look::bezel::smallestLettering, high * letteringShare), QFont::Bold));
    painter.setPen(lit ? light : look::dimCaption);
    painter.drawText(QRectF(at.x() + lens / 2, 0, well.right() - at.x() - lens / 2, high),
                     Qt::AlignCenter, text());
}

void ChannelLamp::enterEvent(QEnterEvent* /*event*/) {
    update();
}

void ChannelLamp::leaveEvent(QEvent* /*event*/) {
    update();
}

} // namespace tarnel
