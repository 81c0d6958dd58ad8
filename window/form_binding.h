#pragma once

#include "controls/form_controls.h"
#include "shell/form_1.h"
#include "window/text_of.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QAbstractButton;
class QAction;
class QComboBox;
class QLabel;
class QWidget;

namespace tarnel {

/// Keeps widgets equal to the controls of the form: clicks go to the form, and what the form
/// changes is shown at the next `refresh`. A widget takes its control's name as object name.
class FormBinding : public QObject {
    Q_OBJECT

  public:
    explicit FormBinding(Form1& form, QObject* parent = nullptr);

    void bind(CommandButton& control, QAbstractButton& button);
    void bind(CommandButton& control, QAction& action);
    void bind(CheckBox& control, QAbstractButton& button);
    void bind(CheckBox& control, QAction& action);
    void bind(OptionButton& control, QAbstractButton& button);
    void bind(SelectionList& control, QComboBox& list);
    void bind(TextPanel& control, QLabel& label);

    /// Brings the widgets up to date if a control has changed.
    void refresh();

  private:
    void follow(std::function<void()> update);
    void showCommon(const FormControl& control, QWidget& widget) const;
    [[nodiscard]] QString captionOf(const FormControl& control) const;

    Form1& form;
    std::vector<std::function<void()>> updates;
    std::uint64_t shown = 0;
};

} // namespace tarnel
