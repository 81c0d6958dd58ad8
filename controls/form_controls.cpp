#include "controls/form_controls.h"

namespace tarnel {

FormControl::FormControl(FormState& owner, std::string_view name, std::optional<Text> caption,
                         std::optional<Text> tip)
    : form(owner), controlName(name), captionText(caption), tipText(tip) {}

void CommandButton::click() {
    if (enabled() && visible() && onClick)
        onClick();
}

void CheckBox::set(int value) {
    if (change(state, value) && onClick)
        onClick();
}

void CheckBox::click() {
    if (enabled() && visible())
        set(state == 1 ? 0 : 1);
}

OptionButton::OptionButton(FormState& owner, OptionGroup& options, std::string_view name,
                           std::optional<Text> caption, std::optional<Text> tip)
    : FormControl(owner, name, caption, tip), group(options) {}

void OptionButton::choose() {
    if (chosen() && !repeats)
        return;
    show();
    if (onClick)
        onClick();
}

void OptionButton::show() {
    if (chosen())
        return;
    if (group.chosen)
        group.chosen->touch();
    group.chosen = this;
    touch();
}

void OptionButton::clear() {
    if (!chosen())
        return;
    group.chosen = nullptr;
    touch();
}

void OptionButton::click() {
    if (enabled() && visible())
        choose();
}

SelectionList::SelectionList(FormState& owner, std::string_view name, std::vector<Text> entries,
                             std::optional<Text> tip)
    : FormControl(owner, name, {}, tip), texts(std::move(entries)) {}

void SelectionList::pick(int index) {
    change(selected, index);
    if (onClick)
        onClick();
}

void SelectionList::select(int index) {
    if (change(selected, index) && onClick)
        onClick();
}

} // namespace tarnel
