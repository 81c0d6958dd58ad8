#include "window/chart/station_dialog.h"

#include "chart/chart_picture.h"
#include "look/look.h"
#include "window/widgets/help_page.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/text_of.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>

namespace tarnel {

namespace {

constexpr int usualNameLength = 12;
constexpr int margin = 16;
constexpr int rowGap = 10;
constexpr int barHeight = 4;
constexpr int fieldWidth = 150;

/// Takes any sign where the mask has a digit: what is wrong is told by the form.
QString inputMaskOf(std::string_view mask) {
    return QString::fromLatin1(mask.data(), static_cast<qsizetype>(mask.size()))
               .replace(QLatin1Char('#'), QLatin1Char('x')) +
           QStringLiteral(";_");
}

Text switchName(Slot slot) {
    static constexpr Text names[] = {Text::editorVorOn, Text::editorVorOn, Text::editorNdbOn,
                                     Text::editorNdbOn, Text::editorLocOn};
    return names[static_cast<std::size_t>(slot)];
}

} // namespace

StationDialog::StationDialog(StationDesk& stationDesk, BoxDesk& boxDesk, Slot slot, QWidget* parent)
    : QDialog(parent), desk(stationDesk), boxes(boxDesk), edit(stationDesk.toEdit(slot)) {
    setObjectName(QStringLiteral("station_edit"));
    setWindowTitle(text(editorTitle(slot)));
    setModal(true);
    setHelpPage(*this, "chart");
    auto* bar = new QWidget(this);
    bar->setAutoFillBackground(true);
    bar->setPalette(look::fromSurface(slotColour(static_cast<std::size_t>(slot))));
    bar->setFixedHeight(barHeight);
    auto* rows = new QFormLayout;
    rows->setContentsMargins(margin, margin, margin, margin);
    rows->setHorizontalSpacing(margin);
    rows->setVerticalSpacing(rowGap);
    makeTexts(*rows);
    makeSwitches(*rows);
    makePlaces(*rows);
    makeButtons(*rows);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(bar);
    whole->addLayout(rows);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    giveMnemonics(*this);
}

QString StationDialog::text(Text id) const {
    return textOf(boxes.texts, id);
}

/// A name ends at "@" in the files.
void StationDialog::makeTexts(QFormLayout& rows) {
    name = new QLineEdit(this);
    name->setObjectName(QStringLiteral("Text1"));
    const QString present = QString::fromStdString(edit.name);
    name->setMaxLength(std::max(usualNameLength, static_cast<int>(present.size())));
    name->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[^@]*")), name));
    name->setText(present);
    frequency = new QLineEdit(this);
    frequency->setObjectName(QStringLiteral("MaskEdBox1"));
    frequency->setInputMask(inputMaskOf(frequencyMask(edit.slot)));
    frequency->setText(QString::fromStdString(edit.frequency));
    for (QLineEdit* field : {name, frequency})
        field->setMinimumWidth(fieldWidth);
    rows.addRow(text(Text::editorIdentifier), name);
    rows.addRow(text(Text::editorFrequency), frequency);
}

void StationDialog::makeSwitches(QFormLayout& rows) {
    const auto add = [&](const char* object, Text caption, bool ticked) {
        auto* box = new QCheckBox(text(caption), this);
        box->setObjectName(QString::fromLatin1(object));
        box->setChecked(ticked);
        rows.addRow(QString(), box);
        return box;
    };
    stationOn = add("Check1", switchName(edit.slot), edit.stationOn);
    if (hasDme(edit.slot))
        dmeOn = add("Check2", Text::editorDmeOn, edit.dmeOn);
}

/// The places lie about the middle as they do about the symbol.
void StationDialog::makePlaces(QFormLayout& rows) {
    static constexpr std::array<QPoint, labelPlaces.size()> cells = {
        {{1, 0}, {2, 1}, {0, 1}, {1, 2}}};
    auto* cross = new QWidget(this);
    auto* grid = new QGridLayout(cross);
    grid->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < places.size(); ++i) {
        places[i] = new QRadioButton(text(labelPlaces[i].name), cross);
        places[i]->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        places[i]->setChecked(static_cast<int>(i) == edit.labelPlace);
        grid->addWidget(places[i], cells[i].y(), cells[i].x());
    }
    rows.addRow(text(Text::editorLabel), cross);
}

void StationDialog::makeButtons(QFormLayout& rows) {
    auto* buttons = new QDialogButtonBox(this);
    const auto add = [&](const char* object, Text caption, QDialogButtonBox::ButtonRole role) {
        auto* button = new QPushButton(text(caption));
        button->setObjectName(QString::fromLatin1(object));
        button->setProperty("primary", role == QDialogButtonBox::AcceptRole);
        buttons->addButton(button, role);
        return button;
    };
    add("OKButton", Text::ok, QDialogButtonBox::AcceptRole)->setDefault(true);
    add("CancelButton", Text::cancel, QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &StationDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &StationDialog::reject);
    rows.addRow(buttons);
}

StationEdit StationDialog::entered() const {
    StationEdit result = edit;
    result.name = name->text().toStdString();
    result.frequency = frequency->text().toStdString();
    result.stationOn = stationOn->isChecked();
    result.dmeOn = dmeOn && dmeOn->isChecked();
    for (std::size_t i = 0; i < places.size(); ++i)
        if (places[i]->isChecked())
            result.labelPlace = static_cast<int>(i);
    return result;
}

void StationDialog::accept() {
    bool taken = false;
    boxes.guarded([&] { taken = desk.apply(entered()); });
    if (taken)
        return QDialog::accept();
    frequency->setFocus();
    frequency->selectAll();
}

} // namespace tarnel
