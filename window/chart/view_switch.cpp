#include "window/chart/view_switch.h"

#include "window/widgets/choice_button.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace tarnel {

namespace {

constexpr int segmentPadding = 20;

} // namespace

ViewSwitch::ViewSwitch(Form1& owner, QWidget* parent) : QWidget(parent), form(owner) {
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
    auto* button = new ChoiceButton(segmentPadding, this);
    button->setText(textOf(form.texts, caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setProperty("segment", segment);
    button->setToolTip(textOf(form.texts, Text::chartViewTip));
    connect(button, &QPushButton::clicked, this, [this, up] {
        form.guarded([&] { form.display.setNorthUp(up); });
        shownView = -1;
        refresh();
    });
    return button;
}

void ViewSwitch::refresh() {
    headingUp->setEnabled(form.display.mayTurnHeadingUp());
    const int view = form.UserControl11.c_MAPnorthUP;
    if (view == shownView)
        return;
    shownView = view;
    northUp->setChecked(view == 1);
    headingUp->setChecked(view != 1);
}

} // namespace tarnel
