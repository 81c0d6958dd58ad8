#include "window/chart/scale_choice.h"

#include "window/widgets/choice_button.h"
#include "window/widgets/spoken.h"
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

ScaleChoice::ScaleChoice(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent)
    : QWidget(parent), display(chartDisplay), boxes(boxDesk) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    setSpokenName(*this, textOf(boxes.texts, Text::chartScale));
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
    const auto across = static_cast<int>(std::lround(display.milesAcross(scale)));
    button->setToolTip(textOf(boxes.texts, Text::chartScaleTip).arg(across));
    button->setAccessibleName(textOf(boxes.texts, Text::chartScale) + QLatin1Char(' ') +
                              button->text() + QLatin1Char(' ') +
                              textOf(boxes.texts, Text::unitNauticalMiles));
    connect(button, &QPushButton::clicked, this, [this, scale] {
        boxes.guarded([&] { display.setScale(scale); });
        shown = 0;
        refresh();
    });
    return button;
}

void ScaleChoice::refresh() {
    const int scale = display.scale();
    if (scale == shown)
        return;
    shown = scale;
    for (std::size_t i = 0; i < count; ++i)
        showChosen(*segments[i], MapView::offeredScales[i] == scale);
}

} // namespace tarnel
