#include "window/widgets/segment_row.h"

#include "window/widgets/choice_button.h"
#include "window/widgets/spoken.h"

#include <QHBoxLayout>

namespace tarnel {

namespace {

constexpr int segmentPadding = 14;

} // namespace

QWidget* segmentRow(FormBinding& binding, const QString& name,
                    std::initializer_list<OptionButton*> options, QWidget* parent) {
    auto* bar = new QWidget(parent);
    setSpokenName(*bar, name);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (OptionButton* option : options) {
        auto* segment = new ChoiceButton(segmentPadding, bar);
        segment->setProperty("segment", option == *options.begin()       ? "first"
                                        : option == *(options.end() - 1) ? "last"
                                                                         : "middle");
        binding.bind(*option, *segment);
        row->addWidget(segment, segment->sizeHint().width());
    }
    return bar;
}

} // namespace tarnel
