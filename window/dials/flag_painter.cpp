#include "window/dials/flag_painter.h"

#include "look/panel_look.h"

#include <QPainter>
#include <QPainterPath>

namespace tarnel {

namespace {

constexpr double pointTwips = 20;
constexpr double flagRounding = 0.18; ///< of an em

double emOf(const Label& label, double scale) {
    return label.fontPoints * pointTwips * scale;
}

QPointF placeOf(const Label& label, double scale) {
    return {label.anchor.x * scale, label.anchor.y * scale};
}

void paintShadow(QPainter& painter, const QRectF& flag, double em) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(look::faded(Qt::black, 0.45));
    painter.drawRoundedRect(flag.translated(0, em * 0.08), em * flagRounding, em * flagRounding);
}

void paintEdge(QPainter& painter, const QRectF& flag, double em) {
    constexpr double edge = 0.07;
    painter.setPen(QPen(look::shapeEdge, em * edge));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(flag, em * flagRounding, em * flagRounding);
    painter.setPen(Qt::NoPen);
}

} // namespace

void paintNeedleName(QPainter& painter, const Label& label, const QColor& colour, double scale) {
    constexpr double share = 0.85;
    const double em = emOf(label, scale);
    painter.setFont(look::font(em * share, QFont::Bold));
    painter.setPen(colour);
    painter.drawText(QRectF(placeOf(label, scale), QSizeF(em * 8, em * 1.2)),
                     Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(label.caption));
    painter.setPen(Qt::NoPen);
}

void paintBarberFlag(QPainter& painter, const Label& label, double scale) {
    constexpr double width = 2.1;
    constexpr double height = 1.05;
    constexpr double stripe = 0.34;
    const double em = emOf(label, scale);
    const QRectF flag(placeOf(label, scale), QSizeF(em * width, em * height));
    paintShadow(painter, flag, em);
    QPainterPath outline;
    outline.addRoundedRect(flag, em * flagRounding, em * flagRounding);
    painter.fillPath(outline, look::rgb(0xF4F5F5));
    painter.save();
    painter.setClipPath(outline);
    painter.setPen(QPen(look::flagRed, em * stripe, Qt::SolidLine, Qt::FlatCap));
    for (double x = flag.left() - flag.height() / 2; x < flag.right() + flag.height();
         x += em * stripe * 2.2)
        painter.drawLine(QPointF(x - em * 0.2, flag.bottom() + em * 0.2),
                         QPointF(x + flag.height() * 0.7 + em * 0.2, flag.top() - em * 0.2));
    painter.restore();
    paintEdge(painter, flag, em);
}

void paintWordFlag(QPainter& painter, const Label& label, double scale) {
    constexpr double width = 1.15;
    constexpr double row = 1.0;
    constexpr double margin = 0.22;
    const double em = emOf(label, scale);
    const QStringList letters = QString::fromStdString(label.caption).split('\n');
    const QRectF flag(
        placeOf(label, scale),
        QSizeF(em * width, em * (row * static_cast<double>(letters.size()) + margin)));
    paintShadow(painter, flag, em);
    painter.setBrush(look::flagRed);
    painter.drawRoundedRect(flag, em * flagRounding, em * flagRounding);
    paintEdge(painter, flag, em);
    painter.setFont(look::font(em * 0.95, QFont::Bold));
    painter.setPen(Qt::white);
    QRectF line(flag.left(), flag.top() + em * margin / 2, flag.width(), em * row);
    for (const QString& letter : letters) {
        painter.drawText(line, Qt::AlignCenter, letter);
        line.translate(0, em * row);
    }
    painter.setPen(Qt::NoPen);
}

} // namespace tarnel
