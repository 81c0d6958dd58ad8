#include "window/chart/view_switch.h"

#include "window/widgets/kept_buttons.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace tarnel {

namespace {

constexpr int segmentPadding = 20;

} // namespace

ViewSwitch::ViewSwitch(ChartDisplay& chartDisplay, BoxDesk& boxDesk, QWidget* parent)
    : QWidget(parent), display(chartDisplay), boxes(boxDesk) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    northUp = addView("NorthUp", "first", Text::northUp, true);
    headingUp = addView("HeadingUp", "last", Text::headingUp, false);
    row->addWidget(northUp);
    row->addWidget(headingUp);
    refresh();
}

QPushButton* ViewSwitch::addView(const char* name, const char* segment, Text caption, bool up) {
    auto* button = new KeptButton<ChoiceButton>(segmentPadding, this);
    button->setText(textOf(boxes.texts, caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("segment", segment);
    button->setToolTip(textOf(boxes.texts, Text::chartViewTip));
    connect(button, &QPushButton::clicked, this, [this, up] {
        boxes.guarded([&] { display.setNorthUp(up); });
        shownNorthUp.reset();
        refresh();
    });
    return button;
}

void ViewSwitch::refresh() {
    headingUp->setEnabled(display.mayTurnHeadingUp());
    const bool up = display.northUp();
    if (up == shownNorthUp)
        return;
    shownNorthUp = up;
    showChosen(*northUp, up);
    showChosen(*headingUp, !up);
}

} // namespace tarnel
