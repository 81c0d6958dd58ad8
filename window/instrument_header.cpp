#include "window/instrument_header.h"

#include "window/dark_list.h"
#include "window/icons.h"
#include "window/panel_look.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace tarnel {

namespace {

constexpr int partGap = 9;
constexpr int swatchWidth = 14;
constexpr int briefSwatchWidth = 7;
constexpr int swatchGap = 4;

QColor needleColour(LegendNeedle needle) {
    switch (needle) {
    case LegendNeedle::first:
        return look::needleOne;
    case LegendNeedle::second:
        return look::needleTwo;
    case LegendNeedle::course:
        break;
    }
    return look::course;
}

/// A single bar for the first needle, a double one for the second.
void paintSwatch(QPainter& painter, LegendNeedle needle, QRectF area) {
    const QColor colour = needleColour(needle);
    const double middle = area.center().y();
    if (needle == LegendNeedle::first) {
        painter.fillRect(QRectF(area.left(), middle - 1, area.width(), 2), colour);
        return;
    }
    painter.fillRect(QRectF(area.left(), middle - 2.5, area.width(), 1.5), colour);
    painter.fillRect(QRectF(area.left(), middle + 1, area.width(), 1.5), colour);
}

} // namespace

InstrumentHeader::InstrumentHeader(Form1& owner, HeaderControls own, FormBinding& binding,
                                   QWidget* parent)
    : QWidget(parent), form(owner), controls(own) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3);
    auto* kinds = new DarkList(this);
    kinds->setProperty("dark", true);
    binding.bind(controls.links.typeList, *kinds);
    row->addWidget(kinds);

    QToolButton* radial = addToggle(*row);
    radial->setIcon(signIcon(Sign::radial, look::caption));
    binding.bind(controls.links.radialBox, *radial);
    overlay = addToggle(*row);
    overlay->setIcon(signIcon(Sign::pointer, look::caption));
    binding.bind(controls.links.overlayBox, *overlay);
    QToolButton* size = addToggle(*row);
    size->setIcon(signIcon(Sign::enlarge, look::caption));
    followSize(*size);
    toggles = size;
    row->addStretch(1);
    refresh();
}

QToolButton* InstrumentHeader::addToggle(QHBoxLayout& row) {
    auto* button = new QToolButton(this);
    button->setProperty("dark", true);
    button->setCheckable(true);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    row.addWidget(button);
    return button;
}

/// One toggle stands for the two size options.
void InstrumentHeader::followSize(QToolButton& button) {
    button.setObjectName(QStringLiteral("Size_") + controls.links.typeList.name().data());
    button.setToolTip(textOf(form.texts, Text::largeDisplayTip));
    button.setAccessibleName(textOf(form.texts, Text::largeDisplay));
    connect(&button, &QToolButton::clicked, this, [this](bool large) {
        form.guarded([&] { (large ? controls.largeSize : controls.smallSize).click(); });
    });
}

void InstrumentHeader::refresh() {
    const InstrumentPosition& position = controls.links.position;
    overlay->setVisible(position.type == hsi);
    auto next = instrumentLegend(form.texts, position,
                                 static_cast<std::int16_t>(form.ADFControlFace1.c_SetFreq.get()));
    if (next == legend)
        return;
    legend = std::move(next);
    update();
}

int InstrumentHeader::legendWidth(const QFontMetrics& metrics) const {
    int width = 0;
    for (const LegendPart& part : legend)
        width += metrics.horizontalAdvance(QString::fromStdString(part.text)) + partGap +
                 (part.needle == LegendNeedle::course ? 0 : swatchWidth + swatchGap);
    return width;
}

int InstrumentHeader::paintPart(QPainter& painter, const LegendPart& part, bool brief,
                                int rightEdge) const {
    const QString text = QString::fromStdString(brief ? part.shortText : part.text);
    const int width = painter.fontMetrics().horizontalAdvance(text);
    const QRect area(rightEdge - width, 0, width, height());
    painter.setPen(needleColour(part.needle));
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignRight | Qt::TextDontClip, text);
    if (part.needle == LegendNeedle::course)
        return area.left();
    const int bar = brief ? briefSwatchWidth : swatchWidth;
    const QRectF swatch(area.left() - swatchGap - bar, 0, bar, height());
    paintSwatch(painter, part.needle, swatch);
    return static_cast<int>(swatch.left());
}

void InstrumentHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont bold = font();
    bold.setBold(true);
    bold.setPixelSize(qMax(10, bold.pixelSize() * look::unitType / look::bodyType));
    painter.setFont(bold);
    const bool brief =
        legendWidth(painter.fontMetrics()) > width() - toggles->geometry().right() - partGap;
    int rightEdge = width() - 2;
    for (auto part = legend.rbegin(); part != legend.rend(); ++part)
        rightEdge = paintPart(painter, *part, brief, rightEdge) - (brief ? partGap / 2 : partGap);
}

} // namespace tarnel
