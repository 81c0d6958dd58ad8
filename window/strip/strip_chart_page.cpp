#include "window/strip/strip_chart_page.h"

#include "look/look.h"
#include "window/chart/scale_choice.h"
#include "window/chart/vector_box.h"
#include "window/chart/view_switch.h"
#include "window/widgets/icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace tarnel {

StripChartPage::StripChartPage(const StripModel& stripModel, FormBinding& links, QWidget* parent)
    : StripPage(stripModel, links, parent) {
    addView();
    addScale();
    WrapLayout* boxes = addColumns();
    addBox(*boxes, model.controls.chartPage.trace);
    boxes->addWidget(vectorBox(model.controls.chartPage.vectors, model.display, binding, this));
    addBox(*boxes, model.controls.chartPage.hide);
    addBox(*boxes, model.floatingGyroBox);
    finish();
}

void StripChartPage::addView() {
    WrapLayout* line = addLine();
    views = new ViewSwitch(model.display, model.boxes, this);
    line->addWidget(views);
    for (CommandButton* control :
         {&model.controls.chartPage.centre, &model.controls.chartPage.reset}) {
        auto* button = new QPushButton(this);
        binding.bind(*control, *button);
        line->addWidget(button);
    }
}

void StripChartPage::addScale() {
    WrapLayout* line = addLine();
    auto* group = new QWidget(this);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    scales = new ScaleChoice(model.display, model.boxes, group);
    row->addWidget(captioned(Text::chartScale));
    row->addWidget(scales);
    row->addWidget(captioned(Text::unitNauticalMiles));
    line->addWidget(group);
    auto* cycle = new QToolButton(this);
    cycle->setIcon(signIcon(Sign::radial));
    binding.bind(model.controls.radialCycleButton, *cycle);
    line->addWidget(cycle);
}

void StripChartPage::refresh() {
    views->refresh();
    scales->refresh();
}

} // namespace tarnel
