#pragma once

#include "controls/form_controls.h"
#include "controls/scroll_bar.h"
#include "controls/text_field.h"
#include "controls/text_list.h"
#include "controls/text_option.h"
#include "strings/string_table.h"
#include "window/widgets/model_guard.h"
#include "window/widgets/text_of.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <vector>

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QTabBar;
class QWidget;

namespace tarnel {

class QuizList;
class ReplayBar;
class SteadyLabel;

/// The name of `control` as Qt wants it.
[[nodiscard]] QString nameOf(const FormControl& control);

/// Keeps widgets equal to the controls of the form: clicks go to the form, and what the form
/// changes is shown at the next `refresh`. A widget without an object name takes its control's.
class FormBinding : public QObject {
    Q_OBJECT

  public:
    /// `texts` and `form` must live as long; `guard` runs what a hand does to a control.
    FormBinding(const StringTable& texts, const FormState& form, ModelGuard guard,
                QObject* parent = nullptr);

    /// The tool tips of `control` also tell the key that does the same. To be said before binding.
    void tellKey(const FormControl& control, char letter) { letters[&control] = letter; }

    void bind(CommandButton& control, QAbstractButton& button);
    void bind(CommandButton& control, QAction& action);
    void bind(CheckBox& control, QAbstractButton& button);
    /// A click does `click` in place of what a click on a box does.
    void bind(CheckBox& control, QAbstractButton& button, std::function<void()> click);
    void bind(CheckBox& control, QAction& action);
    void bind(OptionButton& control, QAbstractButton& button);
    void bind(TextOption& control, QAbstractButton& button);
    /// A tab for each of the options, with its name as data.
    void bind(const std::vector<OptionButton*>& options, QTabBar& tabs);
    void bind(SelectionList& control, QComboBox& list);
    void bind(TextList& control, QuizList& list);
    void bind(TextPanel& control, QLabel& label);
    void bind(TextPanel& control, SteadyLabel& label);
    void bind(ScrollBar& control, ReplayBar& bar);
    void bind(TextField& control, QLineEdit& field);

    /// Runs `update` now and whenever a control has changed.
    void follow(std::function<void()> update);
    /// Brings the widgets up to date if a control has changed.
    void refresh();

  private:
    /// A widget of a control, with what makes it equal to that.
    struct Follower {
        const FormControl* control;
        std::function<void()> update;
        std::uint64_t shown; ///< the control's revision
    };

    void follow(const FormControl& control, std::function<void()> update);
    /// Runs what a hand does to a widget. The control may refuse it, and others may answer: all
    /// widgets are brought up to date.
    void byHand(const std::function<void()>& action);
    void bindOption(OptionButton& control, QAbstractButton& button,
                    std::function<QString()> caption);
    void showTab(const OptionButton& option, QTabBar& tabs, int index) const;
    void showCommon(const FormControl& control, QWidget& widget) const;
    [[nodiscard]] QString captionOf(const FormControl& control) const;
    [[nodiscard]] QString tipOf(const FormControl& control) const;

    const StringTable& texts;
    const FormState& form;
    ModelGuard guarded;
    std::vector<Follower> followers;
    std::vector<std::function<void()>> updates;
    std::map<const FormControl*, char> letters;
    std::uint64_t shown = 0;
};

} // namespace tarnel
