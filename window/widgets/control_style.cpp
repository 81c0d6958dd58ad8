#include "window/widgets/control_style.h"

#include "look/panel_look.h"
#include "window/widgets/quiz_measures.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include <algorithm>

namespace tarnel {

namespace {

bool has(const QWidget* widget, const char* manner) {
    return widget && widget->property(manner).toBool();
}

bool is(const QStyleOption& option, QStyle::StateFlag state) {
    return option.state.testFlag(state);
}

bool isActive(const QStyleOption& option) {
    return is(option, QStyle::State_HasFocus) ||
           (is(option, QStyle::State_MouseOver) && is(option, QStyle::State_Enabled));
}

constexpr int spaceBeforeText = 6;

int fieldSize(const QFontMetrics& metrics) {
    return metrics.height() - 1;
}

/// On a field of colour `ground`.
void paintTick(QPainter& painter, const QRectF& field, const QColor& ground,
               const QStyleOption& option) {
    painter.setPen(
        QPen(look::markOn(ground), field.width() / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&field](double x, double y) {
        return QPointF(field.x() + x * field.width(), field.y() + y * field.height());
    };
    if (is(option, QStyle::State_NoChange))
        painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    else if (is(option, QStyle::State_On))
        painter.drawPolyline(QPolygonF{at(0.24, 0.53), at(0.43, 0.72), at(0.77, 0.31)});
}

void paintTickBox(QPainter& painter, const QStyleOptionButton& box) {
    const look::Colours& colours = look::colours();
    const bool enabled = is(box, QStyle::State_Enabled);
    const int side = fieldSize(box.fontMetrics);
    const QRectF field(box.rect.x() + 1, box.rect.y() + (box.rect.height() - side) / 2.0, side,
                       side);
    const bool filled = !is(box, QStyle::State_Off);
    const QColor mark = enabled ? colours.accent : colours.disabledInk;
    painter.setPen(QPen(filled || isActive(box) ? mark : colours.disabledInk,
                        is(box, QStyle::State_HasFocus) ? 2 : 1.2));
    painter.setBrush(filled ? mark : enabled ? colours.field : colours.card);
    painter.drawRoundedRect(field.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    paintTick(painter, field, mark, box);
    painter.setPen(enabled ? colours.ink : colours.disabledInk);
    painter.drawText(box.rect.adjusted(side + spaceBeforeText, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, box.text);
}

/// What a list looks like in a place of its own.
struct ListLook {
    QColor edge;
    QColor edgeUnderMouse;
    QColor edgeInFocus;
    QBrush ground;
    QColor ink;
    QColor arrow;
    double inset;
};

ListLook panelLook(const QStyleOptionComboBox& list) {
    const bool enabled = is(list, QStyle::State_Enabled);
    const QBrush plate = look::downward(0, list.rect.height(), look::moduleTop, look::moduleBottom);
    return {.edge = enabled ? look::bezelTop.lighter(125) : look::moduleTop,
            .edgeUnderMouse = look::unit,
            .edgeInFocus = look::panelAccent,
            .ground = enabled ? plate : QBrush(look::panelTop),
            .ink = enabled ? look::caption : look::dimCaption,
            .arrow = enabled ? look::unit : look::bezelTop,
            .inset = 8};
}

ListLook lookOf(const QStyleOptionComboBox& list) {
    const look::Colours& colours = look::colours();
    const bool enabled = is(list, QStyle::State_Enabled);
    const bool focused = is(list, QStyle::State_HasFocus);
    return {.edge = enabled ? colours.line : colours.hairline,
            .edgeUnderMouse = colours.accent,
            .edgeInFocus = colours.accent,
            .ground = !enabled  ? colours.card
                      : focused ? colours.focusTint
                                : colours.field,
            .ink = enabled ? list.palette.color(QPalette::ButtonText) : colours.disabledInk,
            .arrow = enabled ? colours.secondaryInk : colours.disabledInk,
            .inset = 10};
}

void paintList(QPainter& painter, const QStyleOptionComboBox& list, double scale, bool dark) {
    constexpr double arrowWidth = 8;
    const ListLook looks = dark ? panelLook(list) : lookOf(list);
    const bool focused = is(list, QStyle::State_HasFocus);
    const double edge = focused ? 2 : 1;
    painter.setPen(QPen(focused          ? looks.edgeInFocus
                        : isActive(list) ? looks.edgeUnderMouse
                                         : looks.edge,
                        edge));
    painter.setBrush(looks.ground);
    const QRectF area = QRectF(list.rect).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
    painter.drawRoundedRect(area, look::controlRadius, look::controlRadius);
    painter.setPen(looks.ink);
    painter.drawText(area.adjusted(looks.inset * scale, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft,
                     list.currentText);
    const double half = arrowWidth * scale / 2;
    const QPointF middle(area.right() - looks.inset * scale - half, area.center().y());
    painter.setPen(QPen(looks.arrow, 1.6 * scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{middle + QPointF(-half, -half / 2),
                                   middle + QPointF(0, half / 2),
                                   middle + QPointF(half, -half / 2)});
}

/// A key of the panel, which gives way under the hand; locked it lies flat in the panel.
void paintKey(QPainter& painter, const QStyleOptionButton& option) {
    constexpr double roundingShare = 4.0 / 24;
    constexpr double light = 0.09;
    constexpr double rim = 0.22;
    const QRectF key = QRectF(option.rect).adjusted(1, 1, -1, -1);
    const double round = roundingShare * option.rect.height();
    const bool down = is(option, QStyle::State_Sunken);
    painter.setPen(QPen(look::panelRing, 1));
    if (!is(option, QStyle::State_Enabled)) {
        painter.setBrush(look::panelTop);
        painter.drawRoundedRect(key, round, round);
        painter.setPen(look::dimCaption);
        painter.drawText(key, Qt::AlignCenter, option.text);
        return;
    }
    const QColor upper = down ? look::keyBottom : look::keyTop;
    const QColor lower = down ? look::bezelBottom : look::keyBottom;
    painter.setBrush(look::downward(key.top(), key.bottom(), upper, lower));
    painter.drawRoundedRect(key, round, round);
    if (is(option, QStyle::State_MouseOver) && !down) {
        painter.setBrush(look::faded(Qt::white, light));
        painter.drawRoundedRect(key, round, round);
    }
    painter.setPen(QPen(look::faded(Qt::white, down ? rim / 3 : rim), 1));
    painter.drawLine(key.topLeft() + QPointF(round, 1), key.topRight() + QPointF(-round, 1));
    painter.setBrush(Qt::NoBrush);
    if (is(option, QStyle::State_HasFocus)) {
        painter.setPen(QPen(look::panelFocus, 2));
        painter.drawRoundedRect(key, round, round);
    }
    painter.setPen(look::caption);
    painter.drawText(key.translated(0, down ? 1 : 0), Qt::AlignCenter, option.text);
}

/// Paints with `paint`, and leaves the painter as it was.
template <class Paint>
void apart(QPainter& painter, const Paint& paint) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paint();
    painter.restore();
}

} // namespace

ControlStyle::ControlStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

/// Qt asks with the desktop's palette, at the start and whenever that changes.
void ControlStyle::polish(QPalette& palette) {
    palette = look::paletteOf(look::coloursFor(palette));
}

void ControlStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_CheckBox && button)
        apart(*painter, [&] { paintTickBox(*painter, *button); });
    else if (element == CE_PushButton && button && has(widget, "dark"))
        apart(*painter, [&] { paintKey(*painter, *button); });
    else if (element != CE_ComboBoxLabel || !(has(widget, "dark") || has(widget, "quiz")))
        QProxyStyle::drawControl(element, option, painter, widget);
}

void ControlStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (control == CC_ComboBox && list && (has(widget, "dark") || has(widget, "quiz")))
        apart(*painter, [&] {
            const bool dark = has(widget, "dark");
            paintList(*painter, *list, dark ? 1 : quiz::scaleOf(*widget), dark);
        });
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize ControlStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_CheckBox)
        size = {fieldSize(option->fontMetrics) + spaceBeforeText + contents.width() + 2,
                option->fontMetrics.height() + 5};
    if (type == CT_CheckBox || type == CT_RadioButton || type == CT_ComboBox ||
        type == CT_ItemViewItem || type == CT_MenuItem)
        size.setHeight(std::max(size.height(), look::leastTarget));
    return size;
}

/// A tick box is clicked on its field and on its text.
QRect ControlStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element != SE_CheckBoxClickRect || !box)
        return QProxyStyle::subElementRect(element, option, widget);
    const int text = option->fontMetrics.horizontalAdvance(box->text);
    QRect area = option->rect;
    area.setWidth(
        std::min(area.width(), fieldSize(option->fontMetrics) + spaceBeforeText + text + 2));
    return area;
}

} // namespace tarnel
