#pragma once

#include "strings/text.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnel {

/// Counts the changes of a form's controls, so that a window knows when to look at them again. A
/// part of a form counts its own, and the form counts them too.
class FormState {
  public:
    explicit FormState(FormState* wholeForm = nullptr) : whole(wholeForm) {}

    [[nodiscard]] std::uint64_t revision() const { return changes; }
    void touch() {
        ++changes;
        if (whole)
            whole->touch();
    }

  private:
    FormState* whole;
    std::uint64_t changes = 0;
};

/// A control of the form without its looks. `name` is the widget's name, by which tests and scripts
/// find it.
class FormControl {
  public:
    FormControl(FormState& form, std::string_view name, std::optional<Text> caption = {},
                std::optional<Text> tip = {});
    FormControl(const FormControl&) = delete;
    FormControl& operator=(const FormControl&) = delete;
    virtual ~FormControl() = default;

    [[nodiscard]] std::string_view name() const { return controlName; }
    [[nodiscard]] std::optional<Text> caption() const { return captionText; }
    [[nodiscard]] std::optional<Text> tip() const { return tipText; }
    [[nodiscard]] bool visible() const { return isVisible; }
    [[nodiscard]] bool enabled() const { return isEnabled; }

    /// Counts this control's own changes.
    [[nodiscard]] std::uint64_t revision() const { return changes; }

    void setCaption(Text caption) { change(captionText, std::optional(caption)); }
    void setTip(Text tip) { change(tipText, std::optional(tip)); }
    void setVisible(bool visible) { change(isVisible, visible); }
    void setEnabled(bool enabled) { change(isEnabled, enabled); }

  protected:
    /// Stores and counts a change. True if the value differs.
    template <class T>
    bool change(T& field, const T& value) {
        if (field == value)
            return false;
        field = value;
        touch();
        return true;
    }

    /// Counts a change that was made past `change`.
    void touch() {
        ++changes;
        form.touch();
    }

  private:
    FormState& form;
    std::uint64_t changes = 0;
    std::string_view controlName;
    std::optional<Text> captionText;
    std::optional<Text> tipText;
    bool isVisible = true;
    bool isEnabled = true;
};

/// A button: a click runs its handler while it is enabled and visible.
class CommandButton : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onClick;
    void click();
};

/// A check box, 0 clear, 1 ticked, 2 greyed. A change of the value by code runs the handler at
/// once, just as a click does.
class CheckBox : public FormControl {
  public:
    using FormControl::FormControl;
    std::function<void()> onClick;
    [[nodiscard]] int value() const { return state; }
    void set(int value);
    /// Shows a value that came about elsewhere, without the handler.
    void show(int value) { change(state, value); }
    /// The user's click: a ticked box becomes clear, any other ticked.
    void click();

  private:
    int state = 0;
};

class OptionButton;

/// Option buttons of which one at most is chosen.
class OptionGroup {
  private:
    friend class OptionButton;
    OptionButton* chosen = nullptr;
};

/// An option button. Choosing it runs its handler at once; unless it `repeats`, choosing it again
/// does nothing.
class OptionButton : public FormControl {
  public:
    OptionButton(FormState& form, OptionGroup& group, std::string_view name,
                 std::optional<Text> caption = {}, std::optional<Text> tip = {});
    std::function<void()> onClick;
    [[nodiscard]] bool chosen() const { return group.chosen == this; }
    void choose();
    /// Shows a choice that came about elsewhere, without the handler.
    void show();
    /// Takes the choice back; no handler runs.
    void clear();
    /// The user's click.
    void click();

    bool repeats = false; ///< a click on the chosen button runs the handler again

  private:
    OptionGroup& group;
};

/// A list of which one entry is selected. Selecting another runs the handler at once.
class SelectionList : public FormControl {
  public:
    SelectionList(FormState& form, std::string_view name, std::vector<Text> entries,
                  std::optional<Text> tip = {});
    std::function<void()> onClick;
    [[nodiscard]] const std::vector<Text>& entries() const { return texts; }
    /// -1 before the first selection.
    [[nodiscard]] int index() const { return selected; }
    void select(int index);
    /// The user's choice: it runs the handler even if the entry was selected already.
    void pick(int index);

  private:
    std::vector<Text> texts;
    int selected = -1;
};

/// A text that the program writes: a read-out or a panel of the status bar.
class TextPanel : public FormControl {
  public:
    using FormControl::FormControl;
    [[nodiscard]] const std::string& text() const { return content; }
    void setText(const std::string& text) { change(content, text); }
    /// What stands in the tool tip; without one, the control's own tip or the text.
    [[nodiscard]] const std::string& tipText() const { return tipContent; }
    void setTipText(const std::string& tip) { change(tipContent, tip); }

  private:
    std::string content;
    std::string tipContent;
};

} // namespace tarnel
