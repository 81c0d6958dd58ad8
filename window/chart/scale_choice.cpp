#include "window/chart/scale_choice.h"

#include "window/widgets/choice_button.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <cmath>

namespace tarnel {

namespace {

constexpr int segmentPadding = 14;

/// NM on 500 twips, to a tenth, as the chart tells its scale.
QString milesText(std::int16_t twipsPerMile) {
    return QString::number(std::round(5000.0 / twipsPerMile) / 10);
}

} // namespace

ScaleChoice::ScaleChoice(Form1& owner, QWidget* parent) : QWidget(parent), form(owner) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (std::size_t i = 0; i < count; ++i)
        row->addWidget(segments[i] = addScale(i));
    refresh();
}

QPushButton* ScaleChoice::addScale(std::size_t index) {
    const std::int16_t scale = MapView::offeredScales[index];
    auto* button = new ChoiceButton(segmentPadding, this);
    button->setText(milesText(scale));
    button->setObjectName(QStringLiteral("Scale_%1").arg(scale));
    button->setProperty("segment", index == 0 ? "first" : index == count - 1 ? "last" : "middle");
    const auto across = static_cast<int>(std::lround(form.UserControl11.picture.size / scale));
    button->setToolTip(textOf(form.texts, Text::chartScaleTip).arg(across));
    button->setAccessibleName(textOf(form.texts, Text::chartScale) + QLatin1Char(' ') +
                              button->text() + QLatin1Char(' ') +
                              textOf(form.texts, Text::unitNauticalMiles));
    connect(button, &QPushButton::clicked, this, [this, scale] {
        form.guarded([&] { form.display.setScale(scale); });
        shown = 0;
        refresh();
    });
    return button;
}

void ScaleChoice::refresh() {
    const int scale = form.UserControl11.c_MAPscale;
    if (scale == shown)
        return;
    shown = scale;
    for (std::size_t i = 0; i < count; ++i)
        segments[i]->setChecked(MapView::offeredScales[i] == scale);
}

} // namespace tarnel
