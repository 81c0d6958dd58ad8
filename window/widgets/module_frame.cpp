#include "window/widgets/module_frame.h"

#include "look/panel_look.h"
#include "window/widgets/digit_display.h"
#include "window/widgets/knob_widget.h"

#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

constexpr double compactHeight = 92;
constexpr double captionRow = 26;
constexpr double compactCaptionRow = 20;
constexpr double bottomInset = 10;
constexpr double compactBottomInset = 6;

constexpr double narrowColumn = 176; ///< the body of a column 200 wide
constexpr double smallestStack = 84; ///< a well with a knob below it

constexpr double stackedWellShare = 0.46; ///< of a cell with a well above a knob

QRect whole(const QRectF& area) {
    return area.toAlignedRect();
}

QRectF centredSquare(QPointF centre, double side) {
    return {centre.x() - side / 2, centre.y() - side / 2, side, side};
}

void placeBeside(const QRectF& cell, double scale, DigitDisplay& digits, KnobWidget& knob) {
    constexpr double knobShare = 0.34;
    const double side = std::min(cell.height(), cell.width() * knobShare);
    const QRectF rest = cell.adjusted(0, 0, -side - partGap * scale, 0);
    digits.setGeometry(whole(wellIn(rest, digits, wellHeightIn(cell.height(), scale))));
    knob.setGeometry(whole(centredSquare({cell.right() - side / 2, cell.center().y()}, side)));
}

void placeStacked(const QRectF& cell, double scale, DigitDisplay& digits, KnobWidget& knob) {
    constexpr double knobShare = 0.5;
    constexpr double narrowKnob = 48;
    const double gap = partGap * scale / 4;
    QRectF well = wellIn(cell, digits, cell.height() * stackedWellShare);
    const double side = std::min(cell.height() - well.height() - gap,
                                 std::max(cell.width() * knobShare, narrowKnob * scale));
    const double free = cell.height() - well.height() - gap - side;
    well.moveTop(cell.top() + free / 2);
    digits.setGeometry(whole(well));
    knob.setGeometry(
        whole(centredSquare({cell.center().x(), well.bottom() + gap + side / 2}, side)));
}

} // namespace

ModuleFrame::ModuleFrame(const QString& word, QWidget* parent) : QWidget(parent), caption(word) {
    setAccessibleName(caption);
}

void ModuleFrame::setScale(double next) {
    moduleScale = std::max(next, 1.0);
    place();
    update();
}

void ModuleFrame::setUnits(std::vector<Unit> next) {
    units = std::move(next);
    update();
}

void ModuleFrame::setDimmed(bool dim) {
    if (dimmed == dim)
        return;
    dimmed = dim;
    update();
}

double ModuleFrame::captionHeight() const {
    return (height() < compactHeight * moduleScale ? compactCaptionRow : captionRow) * moduleScale;
}

void ModuleFrame::resizeEvent(QResizeEvent* /*event*/) {
    place();
}

void ModuleFrame::place() {
    const bool compact = height() < compactHeight * moduleScale;
    const double bottom = compact ? compactBottomInset : bottomInset;
    const double inset = look::moduleInset * moduleScale;
    placeParts(rect().toRectF().adjusted(inset, captionHeight(), -inset, -bottom * moduleScale));
}

void ModuleFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    kept.paint(painter, rect(), {units, moduleScale, dimmed}, [this](QPainter& face) {
        paintPlate(face);
        paintTexts(face);
    });
    painter.setRenderHint(QPainter::Antialiasing);
    paintMore(painter);
}

void ModuleFrame::paintPlate(QPainter& painter) const {
    constexpr double light = 0.16;
    constexpr double shade = 0.35;
    const double rounding = look::moduleRadius * moduleScale;
    const QRectF plate = rect().toRectF().adjusted(0.5, 0.5, -0.5, -0.5);
    QLinearGradient rim = look::downward(plate.top(), plate.bottom(), look::faded(Qt::white, light),
                                         look::faded(Qt::black, shade));
    rim.setColorAt(rounding * 2 / std::max(plate.height(), rounding * 3),
                   look::faded(Qt::white, light / 4));
    painter.setPen(QPen(rim, 1));
    painter.setBrush(
        look::downward(plate.top(), plate.bottom(), look::moduleTop, look::moduleBottom));
    painter.drawRoundedRect(plate, rounding, rounding);
}

void ModuleFrame::paintTexts(QPainter& painter) const {
    const double inset = look::moduleInset * moduleScale;
    const QRectF row(inset, 0, width() - 2 * inset, captionHeight() + moduleScale * 2);
    painter.setFont(look::font(look::captionType * moduleScale, QFont::Bold));
    painter.setPen(dimmed ? look::dimCaption : look::caption);
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, caption);
    painter.setFont(look::font(look::unitType * moduleScale));
    painter.setPen(dimmed ? look::dimCaption : look::unit);
    for (const Unit& unit : units)
        painter.drawText(QRectF(0, row.top(), unit.right, row.height()),
                         Qt::AlignRight | Qt::AlignVCenter, unit.text);
}

bool isStacked(QSizeF body, double columns, double scale) {
    constexpr double uprightShare = 0.6; ///< from which knobs beside the digits leave a gulf
    const bool highEnough = body.height() >= smallestStack * scale;
    const double column = body.width() / columns;
    return highEnough && (column < narrowColumn * scale || body.height() > column * uprightShare);
}

double wellHeightIn(double rowHeight, double scale) {
    constexpr double share = 0.7;
    constexpr double mostShare = 0.8;
    constexpr double comfortable = 38;
    return std::min(rowHeight * mostShare, std::max(rowHeight * share, comfortable * scale));
}

QRectF wellIn(const QRectF& cell, const DigitDisplay& digits, double highest) {
    const double digitHeight = digits.digitHeight({cell.width(), highest});
    const double high = std::min(highest, DigitDisplay::wellHeight(digitHeight));
    return {cell.left(), cell.center().y() - high / 2, cell.width(), high};
}

double placeReading(const QRectF& cell, double scale, DigitDisplay& digits, KnobWidget& knob) {
    knob.setTwipsPerPixel(look::twipsPerPixel / scale);
    digits.setScale(scale);
    if (isStacked(cell.size(), 1, scale))
        placeStacked(cell, scale, digits, knob);
    else
        placeBeside(cell, scale, digits, knob);
    return digits.geometry().right() + 1;
}

} // namespace tarnel
