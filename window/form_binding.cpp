#include "window/form_binding.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

namespace tarnel {

namespace {

QString nameOf(const FormControl& control) {
    const auto name = control.name();
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

FormBinding::FormBinding(Form1& owner, QObject* parent) : QObject(parent), form(owner) {}

void FormBinding::follow(std::function<void()> update) {
    update();
    updates.push_back(std::move(update));
}

QString FormBinding::captionOf(const FormControl& control) const {
    return control.caption() ? textOf(form.texts, *control.caption()) : QString();
}

void FormBinding::showCommon(const FormControl& control, QWidget& widget) const {
    widget.setObjectName(nameOf(control));
    widget.setVisible(control.visible());
    widget.setEnabled(control.enabled());
    if (control.tip())
        widget.setToolTip(textOf(form.texts, *control.tip()));
    if (control.caption())
        widget.setAccessibleName(captionOf(control));
}

void FormBinding::bind(CommandButton& control, QAbstractButton& button) {
    connect(&button, &QAbstractButton::clicked, this,
            [this, &control] { form.guarded([&control] { control.click(); }); });
    follow([this, &control, &button] {
        showCommon(control, button);
        button.setText(captionOf(control));
    });
}

void FormBinding::bind(CommandButton& control, QAction& action) {
    connect(&action, &QAction::triggered, this,
            [this, &control] { form.guarded([&control] { control.click(); }); });
    action.setObjectName(nameOf(control));
    follow([&control, &action] { action.setEnabled(control.enabled()); });
}

void FormBinding::bind(CheckBox& control, QAbstractButton& button) {
    button.setCheckable(true);
    connect(&button, &QAbstractButton::clicked, this, [this, &control, &button] {
        form.guarded([&control] { control.click(); });
        const QSignalBlocker quiet(&button);
        button.setChecked(control.value() == 1);
    });
    follow([this, &control, &button] {
        showCommon(control, button);
        button.setText(captionOf(control));
        const QSignalBlocker quiet(&button);
        if (auto* box = qobject_cast<QCheckBox*>(&button)) {
            box->setCheckState(control.value() == 0   ? Qt::Unchecked
                               : control.value() == 1 ? Qt::Checked
                                                      : Qt::PartiallyChecked);
        } else {
            button.setChecked(control.value() == 1);
        }
    });
}

void FormBinding::bind(CheckBox& control, QAction& action) {
    action.setCheckable(true);
    connect(&action, &QAction::triggered, this, [this, &control, &action] {
        form.guarded([&control] { control.click(); });
        action.setChecked(control.value() == 1);
    });
    follow([&control, &action] {
        action.setEnabled(control.enabled());
        action.setChecked(control.value() == 1);
    });
}

void FormBinding::bind(OptionButton& control, QAbstractButton& button) {
    button.setCheckable(true);
    connect(&button, &QAbstractButton::clicked, this, [this, &control, &button] {
        form.guarded([&control] { control.click(); });
        button.setChecked(control.chosen());
    });
    follow([this, &control, &button] {
        showCommon(control, button);
        button.setText(captionOf(control));
        button.setChecked(control.chosen());
    });
}

void FormBinding::bind(SelectionList& control, QComboBox& list) {
    for (const Text entry : control.entries())
        list.addItem(textOf(form.texts, entry));
    connect(&list, &QComboBox::activated, this,
            [this, &control](int index) { form.guarded([&] { control.pick(index); }); });
    follow([this, &control, &list] {
        showCommon(control, list);
        if (control.tip())
            list.setAccessibleName(textOf(form.texts, *control.tip()));
        list.setCurrentIndex(control.index());
    });
}

void FormBinding::bind(TextPanel& control, QLabel& label) {
    follow([this, &control, &label] {
        showCommon(control, label);
        label.setText(QString::fromStdString(control.text()));
        if (!control.tipText().empty())
            label.setToolTip(QString::fromStdString(control.tipText()));
        else if (!control.tip())
            label.setToolTip(label.text());
    });
}

void FormBinding::refresh() {
    if (shown == form.state.revision())
        return;
    shown = form.state.revision();
    for (const auto& update : updates)
        update();
}

} // namespace tarnel
