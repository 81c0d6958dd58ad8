#include "window/segment_row.h"

#include "window/bold_text.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace tarnel {

namespace {

constexpr int segmentPadding = 14;

} // namespace

QWidget* segmentRow(FormBinding& binding, std::initializer_list<OptionButton*> options,
                    QWidget* parent) {
    auto* bar = new QWidget(parent);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (OptionButton* option : options) {
        auto* segment = new QPushButton(bar);
        segment->setProperty("segment", option == *options.begin()       ? "first"
                                        : option == *(options.end() - 1) ? "last"
                                                                         : "middle");
        binding.bind(*option, *segment);
        const int width = boldTextWidth(*segment);
        segment->setMinimumWidth(width + segmentPadding);
        row->addWidget(segment, width);
    }
    return bar;
}

} // namespace tarnel
