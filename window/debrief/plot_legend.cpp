#include "window/debrief/plot_legend.h"

#include "look/panel_look.h"
#include "window/debrief/finding_rows.h"
#include "window/debrief/plot_painter.h"
#include "window/widgets/text_of.h"

#include <QFontMetricsF>
#include <QPainter>

#include <functional>

namespace tarnel {

namespace {

constexpr double swatch = 20;
constexpr double swatchGap = 6;
constexpr double entryGap = 14;

} // namespace

PlotLegend::PlotLegend(const DebriefModel& debriefModel, QWidget* parent)
    : QWidget(parent), model(debriefModel) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PlotLegend::paintEvent(QPaintEvent* /*event*/) {
    const Attempt* attempt = model.desk.attempt();
    if (!attempt || model.desk.choosesTask())
        return;
    const StringTable& texts = model.boxes.texts;
    const PlotColours& colours = panelColours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    const QFontMetricsF metrics(font());
    double x = entryGap;
    bool full = false;
    const auto entry = [&](const QString& name, const std::function<void(QPointF, QPointF)>& sign) {
        const double wide = swatch + swatchGap + metrics.horizontalAdvance(name) + entryGap;
        full = full || x + wide > width();
        if (full)
            return;
        sign({x, height() / 2.0}, {x + swatch, height() / 2.0});
        painter.setPen(look::unit);
        painter.drawText(QRectF(x + swatch + swatchGap, 0, wide, height()),
                         Qt::AlignLeft | Qt::AlignVCenter, name);
        x += wide;
    };
    const auto line = [&](const QPen& pen) {
        return [&painter, pen](QPointF from, QPointF to) {
            painter.setPen(pen);
            painter.drawLine(from, to);
        };
    };
    entry(attemptName(*attempt, texts), line(QPen(colours.own, 2)));
    for (std::size_t i = 0; i < model.desk.compared().size(); ++i)
        entry(attemptName(model.desk.compared()[i], texts), line(earlierPen(colours, i, 1)));
    entry(textOf(texts, Text::debriefOutside), [&](QPointF from, QPointF to) {
        paintOutside(painter, {from, to}, colours.outside, colours.dots, 4.5);
    });
    entry(textOf(texts, Text::debriefLimitsShown), [&](QPointF from, QPointF to) {
        painter.fillRect(QRectF(from, to).adjusted(0, -6, 0, 6), look::faded(Qt::white, 0.22));
    });
}

} // namespace tarnel
