#include "window/widgets/form_binding.h"

#include "window/widgets/choice_button.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/quiz_list.h"
#include "window/widgets/replay_bar.h"
#include "window/widgets/spoken.h"
#include "window/widgets/steady_label.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTabBar>

namespace tarnel {

QString nameOf(const FormControl& control) {
    const auto name = control.name();
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

namespace {

// Boxes and tabs paint themselves again whenever they are told a state, even the same.

/// A box shows the value 2 as partly ticked; another button has no such state.
void showValue(QAbstractButton& button, int value) {
    const QSignalBlocker quiet(&button);
    auto* box = qobject_cast<QCheckBox*>(&button);
    if (box == nullptr)
        return button.setChecked(value == 1);
    const Qt::CheckState state = value == 0   ? Qt::Unchecked
                                 : value == 1 ? Qt::Checked
                                              : Qt::PartiallyChecked;
    if (box->checkState() != state)
        box->setCheckState(state);
}

} // namespace

FormBinding::FormBinding(const StringTable& words, const FormState& state, ModelGuard guard,
                         QObject* parent)
    : QObject(parent), texts(words), form(state), guarded(std::move(guard)) {}

void FormBinding::follow(std::function<void()> update) {
    update();
    updates.push_back(std::move(update));
}

void FormBinding::follow(const FormControl& control, std::function<void()> update) {
    update();
    followers.push_back({&control, std::move(update), control.revision()});
}

void FormBinding::byHand(const std::function<void()>& action) {
    guarded(action);
    shown = form.revision() - 1;
    for (Follower& follower : followers)
        follower.shown = follower.control->revision() - 1;
}

QString FormBinding::captionOf(const FormControl& control) const {
    return control.caption() ? textOf(texts, *control.caption()) : QString();
}

QString FormBinding::tipOf(const FormControl& control) const {
    const QString tip = textOf(texts, *control.tip());
    const auto letter = letters.find(&control);
    return letter == letters.end() ? tip
                                   : tip + QStringLiteral(" [%1]").arg(QLatin1Char(letter->second));
}

void FormBinding::showCommon(const FormControl& control, QWidget& widget) const {
    if (widget.objectName().isEmpty())
        widget.setObjectName(nameOf(control));
    widget.setVisible(control.visible());
    widget.setEnabled(control.enabled());
    if (control.tip())
        widget.setToolTip(tipOf(control));
    if (control.caption())
        setSpokenName(widget, captionOf(control));
}

void FormBinding::bind(CommandButton& control, QAbstractButton& button) {
    connect(&button, &QAbstractButton::clicked, this,
            [this, &control] { byHand([&control] { control.click(); }); });
    follow(control, [this, &control, &button] {
        showCommon(control, button);
        button.setText(withMnemonicOf(button, captionOf(control)));
    });
}

void FormBinding::bind(CommandButton& control, QAction& action) {
    connect(&action, &QAction::triggered, this,
            [this, &control] { byHand([&control] { control.click(); }); });
    action.setObjectName(nameOf(control));
    follow(control, [&control, &action] { action.setEnabled(control.enabled()); });
}

void FormBinding::bind(CheckBox& control, QAbstractButton& button) {
    bind(control, button, [&control] { control.click(); });
}

void FormBinding::bind(CheckBox& control, QAbstractButton& button, std::function<void()> click) {
    button.setCheckable(true);
    connect(&button, &QAbstractButton::clicked, this,
            [this, &control, &button, click = std::move(click)] {
                byHand(click);
                showValue(button, control.value());
            });
    follow(control, [this, &control, &button] {
        showCommon(control, button);
        button.setText(withMnemonicOf(button, captionOf(control)));
        showValue(button, control.value());
    });
}

void FormBinding::bind(CheckBox& control, QAction& action) {
    action.setCheckable(true);
    connect(&action, &QAction::triggered, this, [this, &control, &action] {
        byHand([&control] { control.click(); });
        action.setChecked(control.value() == 1);
    });
    follow(control, [&control, &action] {
        action.setEnabled(control.enabled());
        action.setChecked(control.value() == 1);
    });
}

void FormBinding::bind(OptionButton& control, QAbstractButton& button) {
    bindOption(control, button,
               [this, &control, &button] { return withMnemonicOf(button, captionOf(control)); });
}

/// Its text comes from a file: an ampersand there is no mark of a key.
void FormBinding::bind(TextOption& control, QAbstractButton& button) {
    bindOption(control, button, [&control] {
        return QString::fromStdString(control.text())
            .replace(QLatin1Char('&'), QStringLiteral("&&"));
    });
}

void FormBinding::bindOption(OptionButton& control, QAbstractButton& button,
                             std::function<QString()> caption) {
    button.setCheckable(true);
    connect(&button, &QAbstractButton::clicked, this, [this, &control, &button] {
        byHand([&control] { control.click(); });
        showChosen(button, control.chosen());
    });
    follow(control, [this, &control, &button, caption = std::move(caption)] {
        showCommon(control, button);
        button.setText(caption());
        showChosen(button, control.chosen());
    });
}

void FormBinding::bind(const std::vector<OptionButton*>& options, QTabBar& tabs) {
    for (const OptionButton* option : options)
        tabs.setTabData(tabs.addTab(captionOf(*option)), nameOf(*option));
    connect(&tabs, &QTabBar::currentChanged, this, [this, options](int index) {
        byHand([&] { options[static_cast<std::size_t>(index)]->click(); });
    });
    int count = 0;
    for (const OptionButton* option : options)
        follow(*option, [this, option, &tabs, index = count++] { showTab(*option, tabs, index); });
}

void FormBinding::showTab(const OptionButton& option, QTabBar& tabs, int index) const {
    const QSignalBlocker quiet(&tabs);
    tabs.setTabVisible(index, option.visible());
    if (tabs.isTabEnabled(index) != option.enabled())
        tabs.setTabEnabled(index, option.enabled());
    if (option.tip())
        tabs.setTabToolTip(index, tipOf(option));
    if (option.chosen())
        tabs.setCurrentIndex(index);
}

void FormBinding::bind(SelectionList& control, QComboBox& list) {
    for (const Text entry : control.entries())
        list.addItem(textOf(texts, entry));
    connect(&list, &QComboBox::activated, this,
            [this, &control](int index) { byHand([&] { control.pick(index); }); });
    follow(control, [this, &control, &list] {
        showCommon(control, list);
        if (control.tip())
            setSpokenName(list, textOf(texts, *control.tip()));
        list.setCurrentIndex(control.index());
    });
}

void FormBinding::bind(TextList& control, QuizList& list) {
    list.onBrowse = [this, &control](int index) {
        byHand([&control, index] { control.select(index); });
    };
    list.onConfirm = [this, &control](int index) {
        byHand([&control, index] { control.pick(index); });
    };
    follow(control, [this, &control, &list] {
        showCommon(control, list);
        QStringList entries;
        for (const std::string& entry : control.entries())
            entries << QString::fromStdString(entry);
        list.setEntries(entries);
        list.setCurrentIndex(control.index());
    });
}

void FormBinding::bind(TextPanel& control, QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    follow(control, [this, &control, &label] {
        showCommon(control, label);
        label.setText(QString::fromStdString(control.text()));
        if (!control.tipText().empty())
            label.setToolTip(QString::fromStdString(control.tipText()));
        else if (!control.tip() && !label.wordWrap())
            label.setToolTip(label.text());
    });
}

void FormBinding::bind(TextPanel& control, SteadyLabel& label) {
    bind(control, static_cast<QLabel&>(label));
    follow(control, [&label] { label.fit(); });
}

void FormBinding::bind(ScrollBar& control, ReplayBar& bar) {
    bar.onScroll = [this, &control](int value) {
        guarded([&control, value] { control.scrollTo(value); });
    };
    follow(control, [this, &control, &bar] {
        showCommon(control, bar);
        bar.showPlace(control.max(), control.value());
    });
}

void FormBinding::bind(TextField& control, QLineEdit& field) {
    connect(&field, &QLineEdit::textEdited, this, [this, &control](const QString& text) {
        byHand([&control, &text] { control.type(text.toStdString()); });
    });
    follow(control, [this, &control, &field] {
        showCommon(control, field);
        if (const QString text = QString::fromStdString(control.text()); text != field.text())
            field.setText(text);
    });
}

void FormBinding::refresh() {
    if (shown == form.revision())
        return;
    shown = form.revision();
    for (Follower& follower : followers)
        if (const std::uint64_t now = follower.control->revision(); now != follower.shown) {
            follower.shown = now;
            follower.update();
        }
    for (const auto& update : updates)
        update();
}

} // namespace tarnel
