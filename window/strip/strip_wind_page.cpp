#include "window/strip/strip_wind_page.h"

#include "window/chart/vector_box.h"
#include "window/strip/wind_entry.h"
#include "window/widgets/segment_row.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tarnel {

StripWindPage::StripWindPage(const StripModel& stripModel, FormBinding& links, QWidget* parent)
    : StripPage(stripModel, links, parent) {
    WindPage& page = model.controls.windPage;
    WrapLayout* modes = addLine();
    modes->addWidget(segmentRow(binding, textOf(model.boxes.texts, Text::pageWind),
                                {&page.none, &page.manual, &page.random}, this));
    auto* draw = new QPushButton(this);
    binding.bind(page.draw, *draw);
    modes->addWidget(draw);

    entry = new WindEntry(model.wind, model.boxes, this);
    addLine()->addWidget(entry);

    WrapLayout* boxes = addColumns();
    auto* shown = new QWidget(this);
    auto* row = new QHBoxLayout(shown);
    row->setContentsMargins(0, 0, 0, 0);
    addBox(*row, page.show);
    auto* readout = new QLabel(shown);
    readout->setProperty("readout", true);
    binding.bind(page.readout, *readout);
    row->addWidget(readout);
    row->addStretch(1);
    boxes->addWidget(shown);
    QWidget* vectors = vectorBox(model.controls.chartPage.vectors, model.display, binding, this);
    boxes->addWidget(vectors);
    finish();
}

void StripWindPage::refresh() {
    entry->refresh();
}

} // namespace tarnel
