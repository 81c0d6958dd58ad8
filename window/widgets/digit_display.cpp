#include "window/widgets/digit_display.h"

#include "look/panel_look.h"
#include "window/widgets/picture_store.h"
#include "window/widgets/spoken.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

constexpr double cellWidthPerHeight =
    static_cast<double>(look::digits::cellWidth) / look::digits::figureHeight;
constexpr double cellHeightPerHeight =
    static_cast<double>(look::digits::cellHeight) / look::digits::figureHeight;

constexpr double pointCells = 0.26;
constexpr double sideMargin = 0.32; ///< of the digits' height, on either side
constexpr double highestShare = 0.64;
constexpr double wellPerDigit = 1.9;
constexpr double labelInset = 9;
constexpr double wellRounding = 4;
constexpr double zerosOpacity = 0.62;
constexpr std::int16_t zeroPicture = 1;

} // namespace

DigitDisplay::DigitDisplay(const DigitReadout& digits, PictureStore& store, DigitStyle look,
                           QWidget* parent)
    : QWidget(parent),
      readout(digits),
      pictures(store),
      style(std::move(look)),
      shown(digits.pictures()) {
    setSpokenRole(*this, QAccessible::StaticText);
}

void DigitDisplay::refresh() {
    if (shown == readout.pictures())
        return;
    shown = readout.pictures();
    update();
}

void DigitDisplay::setMeasured(bool measured) {
    if (style.measured == measured)
        return;
    style.measured = measured;
    update();
}

void DigitDisplay::setPointShown(bool show) {
    if (pointShown == show)
        return;
    pointShown = show;
    update();
}

void DigitDisplay::setDimmed(bool dim) {
    if (dimmed == dim)
        return;
    dimmed = dim;
    update();
}

void DigitDisplay::setScale(double moduleScale) {
    scale = moduleScale;
    update();
}

void DigitDisplay::setLabelShown(bool show) {
    labelShown = show;
    update();
}

double DigitDisplay::cellCount() const {
    return static_cast<double>(shown.size()) + style.printedZeros +
           (style.pointAfter > 0 ? pointCells : 0);
}

double DigitDisplay::widthPerHeight() const {
    return std::max(cellCount(), style.roomFor) * cellWidthPerHeight + 2 * sideMargin;
}

double DigitDisplay::labelWidth() const {
    if (!labelShown || style.label.isEmpty())
        return 0;
    const QFontMetricsF metrics(look::font(look::unitType * scale, QFont::Bold));
    return labelInset * scale +
           std::max(metrics.horizontalAdvance(style.label), metrics.horizontalAdvance(style.unit));
}

double DigitDisplay::digitHeight(QSizeF well) const {
    const double byHeight = well.height() * highestShare;
    const double byWidth = (well.width() - labelWidth()) / widthPerHeight();
    return std::floor(std::max(std::min(byHeight, byWidth), 1.0));
}

double DigitDisplay::wellHeight(double digitHeight) {
    return digitHeight * wellPerDigit;
}

void DigitDisplay::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    keptWell.paint(painter, rect(), scale, [this](QPainter& face) { paintWell(face); });
    if (dimmed)
        painter.setOpacity(look::switchedOffOpacity);
    paintLabel(painter);
    paintDigits(painter);
    painter.setOpacity(1);
    paintOver(painter);
}

void DigitDisplay::paintWell(QPainter& painter) const {
    constexpr double lipLight = 0.13;
    constexpr double shadow = 0.55;
    const QRectF well = rect().toRectF().adjusted(0.5, 0.5, -0.5, -0.5);
    const double rounding = wellRounding * scale;
    QLinearGradient lip = look::downward(well.top(), well.bottom(), look::faded(Qt::black, shadow),
                                         look::faded(Qt::white, lipLight));
    painter.setBrush(look::digitWell);
    painter.setPen(QPen(lip, 1));
    painter.drawRoundedRect(well, rounding, rounding);
    painter.setPen(Qt::NoPen);
    QLinearGradient inner =
        look::downward(well.top(), well.top() + well.height() * 0.3, look::faded(Qt::black, shadow),
                       look::faded(Qt::black, 0));
    painter.setBrush(inner);
    painter.drawRoundedRect(well.adjusted(1, 1, -1, -1), rounding, rounding);
}

QColor DigitDisplay::colour() const {
    return style.measured ? look::measured : look::setByYou;
}

void DigitDisplay::paintLabel(QPainter& painter) const {
    constexpr double rowShare = 1.3;
    constexpr double unitOpacity = 0.62;
    constexpr double labelOpacity = 0.85;
    if (!labelShown)
        return;
    const double row = look::unitType * rowShare * scale;
    QRectF line(labelInset * scale, height() / 2.0 - row, width(), row);
    painter.setFont(look::font(look::unitType * scale, QFont::Bold));
    painter.setPen(look::faded(colour(), dimmed ? 1 : labelOpacity));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, style.label);
    line.translate(0, row);
    painter.setFont(look::font(look::unitType * scale));
    painter.setPen(look::faded(colour(), dimmed ? 1 : unitOpacity));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, style.unit);
    painter.setPen(Qt::NoPen);
}

void DigitDisplay::paintDigits(QPainter& painter) const {
    const double high = digitHeight(size());
    const QSizeF cell(high * cellWidthPerHeight, high * cellHeightPerHeight);
    const double wide = cell.width() * cellCount();
    const double free = width() - labelWidth() - wide;
    QPointF corner(labelWidth() + (style.label.isEmpty() ? free / 2 : free - high * sideMargin),
                   (height() - cell.height()) / 2);
    const double pointRoom = style.pointAfter > 0 ? cell.width() * pointCells : 0;
    if (!pointShown)
        corner.rx() += pointRoom / 2;
    const auto paintDigit = [&](std::int16_t picture) {
        const QString number = QString::number(picture).rightJustified(2, '0');
        const QString colourWord = style.measured ? "green" : "amber";
        drawPicture(painter, pictures, "digit_" + colourWord + "_" + number + ".png",
                    {corner, cell});
        corner.rx() += cell.width();
    };
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (pointShown && i > 0 && i == style.pointAfter) {
            paintPoint(painter, corner + QPointF(0, cell.height()), high);
            corner.rx() += pointRoom;
        }
        paintDigit(shown[i]);
    }
    if (shown.front() >= DigitReadout::dashPicture)
        return;
    painter.setOpacity(std::min(painter.opacity(), zerosOpacity));
    for (int i = 0; i < style.printedZeros; ++i)
        paintDigit(zeroPicture);
}

/// `corner` is the lower left one of the place between two cells.
void DigitDisplay::paintPoint(QPainter& painter, QPointF corner, double high) const {
    const double radius = high * look::digits::strokeShare / 2;
    const double above = high * (cellHeightPerHeight - 1) / 2 + radius;
    const double middle = high * cellWidthPerHeight * pointCells / 2;
    const bool dark = shown.front() == DigitReadout::blankPicture;
    painter.setBrush(dark ? look::faded(colour(), 0.15) : colour());
    painter.drawEllipse(corner + QPointF(middle - radius / 3, -above), radius, radius);
}

} // namespace tarnel
