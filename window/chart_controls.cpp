#include "window/chart_controls.h"

#include "window/bold_text.h"
#include "window/form_binding.h"
#include "window/icons.h"
#include "window/look.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QToolButton>

#include <iterator>

namespace tarnel {

namespace {

constexpr int segmentPadding = 20;

} // namespace

ChartControls::ChartControls(Form1& owner, QWidget* parent) : QWidget(parent), form(owner) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    northUp = addView("NorthUp", "first", Text::northUp, true);
    headingUp = addView("HeadingUp", "last", Text::headingUp, false);
    row->addWidget(northUp);
    row->addWidget(headingUp);
    row->addStretch(1);
    zoomOut = addZoom("ZoomOut", Text::zoomOut, Text::zoomOutTip, -1);
    zoomIn = addZoom("ZoomIn", Text::zoomIn, Text::zoomInTip, 1);
    zoomOut->setIcon(signIcon(Sign::zoomOut, look::ink));
    zoomIn->setIcon(signIcon(Sign::zoomIn, look::ink));
    row->addWidget(zoomOut);
    row->addSpacing(4);
    row->addWidget(zoomIn);
    refresh();
}

QPushButton* ChartControls::addView(const char* name, const char* segment, Text caption, bool up) {
    auto* button = new QPushButton(textOf(form.texts, caption), this);
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("segment", segment);
    button->setCheckable(true);
    button->setToolTip(textOf(form.texts, Text::chartViewTip));
    button->setMinimumWidth(boldTextWidth(*button) + segmentPadding);
    connect(button, &QPushButton::clicked, this, [this, up] {
        form.guarded([&] { form.setNorthUp(up); });
        shownView = -1;
        refresh();
    });
    return button;
}

QToolButton* ChartControls::addZoom(const char* name, Text caption, Text tip, int steps) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setAccessibleName(textOf(form.texts, caption));
    button->setToolTip(textOf(form.texts, tip));
    connect(button, &QToolButton::clicked, this,
            [this, steps] { form.guarded([&] { form.stepScale(steps); }); });
    return button;
}

void ChartControls::refresh() {
    const int view = form.UserControl11.c_MAPnorthUP;
    const int scale = form.UserControl11.c_MAPscale;
    if (view == shownView && scale == shownScale)
        return;
    shownView = view;
    shownScale = scale;
    northUp->setChecked(view == 1);
    headingUp->setChecked(view != 1);
    zoomOut->setEnabled(scale > MapView::offeredScales[0]);
    zoomIn->setEnabled(scale < MapView::offeredScales[std::size(MapView::offeredScales) - 1]);
}

} // namespace tarnel
