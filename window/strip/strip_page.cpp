#include "window/strip/strip_page.h"

#include <QCheckBox>
#include <QLabel>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int gapInLine = 8;
constexpr int gapDown = 2;
constexpr int gapBetweenBoxes = 1;

} // namespace

StripPage::StripPage(const StripModel& stripModel, FormBinding& links, QWidget* parent)
    : QWidget(parent), model(stripModel), binding(links), lines(new QVBoxLayout(this)) {
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(gapDown);
}

WrapLayout* StripPage::addLine() {
    auto* line = new WrapLayout(WrapLayout::Manner::flowing, gapInLine, gapDown);
    lines->addLayout(line);
    return line;
}

WrapLayout* StripPage::addColumns(int gapAcross) {
    auto* columns = new WrapLayout(WrapLayout::Manner::inColumns, gapAcross, gapBetweenBoxes);
    lines->addLayout(columns);
    return columns;
}

void StripPage::finish() {
    lines->addStretch(1);
}

void StripPage::addBox(QLayout& layout, CheckBox& control) {
    auto* box = new QCheckBox(this);
    binding.bind(control, *box);
    layout.addWidget(box);
}

QLabel* StripPage::captioned(Text text) {
    auto* label = new QLabel(textOf(model.boxes.texts, text), this);
    label->setProperty("secondary", true);
    return label;
}

} // namespace tarnel
