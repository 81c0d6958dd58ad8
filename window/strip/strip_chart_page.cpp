#include "window/strip/strip_chart_page.h"

#include "window/chart/scale_choice.h"
#include "window/chart/vector_box.h"
#include "window/chart/view_switch.h"
#include "window/widgets/icons.h"
#include "window/widgets/look.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace tarnel {

StripChartPage::StripChartPage(Form1& owner, FormBinding& links, QWidget* parent)
    : StripPage(owner, links, parent) {
    addView();
    addScale();
    WrapLayout* boxes = addColumns();
    addBox(*boxes, form.chartPage.trace);
    boxes->addWidget(vectorBox(form, binding, this));
    addBox(*boxes, form.chartPage.hide);
    addBox(*boxes, form.floatingGyroBox);
    finish();
}

void StripChartPage::addView() {
    WrapLayout* line = addLine();
    views = new ViewSwitch(form, this);
    line->addWidget(views);
    for (CommandButton* control : {&form.chartPage.centre, &form.chartPage.reset}) {
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
    scales = new ScaleChoice(form, group);
    row->addWidget(captioned(Text::chartScale));
    row->addWidget(scales);
    row->addWidget(captioned(Text::unitNauticalMiles));
    line->addWidget(group);
    auto* cycle = new QToolButton(this);
    cycle->setIcon(signIcon(Sign::radial, look::ink));
    binding.bind(form.radialCycleButton, *cycle);
    line->addWidget(cycle);
}

void StripChartPage::refresh() {
    views->refresh();
    scales->refresh();
}

} // namespace tarnel
