#include "window/chart/chart_controls.h"

#include "look/look.h"
#include "window/chart/view_switch.h"
#include "window/widgets/icons.h"
#include "window/widgets/kept_buttons.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QToolButton>

#include <iterator>

namespace tarnel {

namespace {

constexpr int zoomGap = 4;

} // namespace

ChartControls::ChartControls(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent)
    : QWidget(parent), display(chartDisplay), boxes(boxDesk) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    views = new ViewSwitch(display, boxes, this);
    row->addWidget(views);
    row->addStretch(1);
    zoomOut = addZoom("ZoomOut", Text::zoomOut, Text::zoomOutTip, -1);
    zoomIn = addZoom("ZoomIn", Text::zoomIn, Text::zoomInTip, 1);
    zoomOut->setIcon(signIcon(Sign::zoomOut));
    zoomIn->setIcon(signIcon(Sign::zoomIn));
    row->addWidget(zoomOut);
    row->addSpacing(zoomGap);
    row->addWidget(zoomIn);
    refresh();
}

QToolButton* ChartControls::addZoom(const char* name, Text caption, Text tip, int steps) {
    auto* button = new KeptButton<QToolButton>(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAccessibleName(textOf(boxes.texts, caption));
    button->setToolTip(textOf(boxes.texts, tip));
    connect(button, &QToolButton::clicked, this,
            [this, steps] { boxes.guarded([&] { display.stepScale(steps); }); });
    return button;
}

/// On a very small chart the strip's page alone has the views.
void ChartControls::resizeEvent(QResizeEvent* /*event*/) {
    const int needed = views->sizeHint().width() + zoomOut->sizeHint().width() +
                       zoomIn->sizeHint().width() + 2 * zoomGap;
    views->setVisible(width() >= needed);
}

void ChartControls::refresh() {
    views->refresh();
    const int scale = display.scale();
    if (scale == shownScale)
        return;
    shownScale = scale;
    zoomOut->setEnabled(scale > MapView::offeredScales[0]);
    zoomIn->setEnabled(scale < MapView::offeredScales[std::size(MapView::offeredScales) - 1]);
}

} // namespace tarnel
