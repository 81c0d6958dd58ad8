#include "window/chart/chart_finder_dialog.h"

#include "chart/chart_picture.h"
#include "look/look.h"
#include "window/widgets/busy_cursor.h"
#include "window/widgets/help_page.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/text_of.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace tarnel {

namespace {

constexpr int margin = 16;
constexpr int gap = 8;
constexpr int usualWidth = 720;
constexpr int shownHits = 6;
constexpr int barWidth = 4;
constexpr int nameShare = 26;    ///< characters that a list shows at least
constexpr int typingPause = 150; ///< ms until what is typed is searched

enum Column { identifierColumn, nameColumn, kindColumn, frequencyColumn, columnCount };

constexpr Text slotNames[] = {Text::signalVor1, Text::signalVor2, Text::signalNdb1,
                              Text::signalNdb2, Text::navLocalizer};

QString plain(const std::string& text) {
    return QString::fromStdString(text);
}

/// A label that takes as many lines as it needs.
QLabel* wrappingLabel(QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setProperty("secondary", true);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

/// A list as wide as the dialog, whatever stands in it.
QComboBox* wideList(QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->setProperty("quiz", true);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(nameShare);
    return list;
}

} // namespace

ChartFinderDialog::ChartFinderDialog(UserControl2& simulation, BoxDesk& boxDesk,
                                     const NavFolders& folders, QWidget* parent)
    : QDialog(parent), boxes(boxDesk), finder(simulation, boxDesk, folders, withBusyCursor) {
    setObjectName(QStringLiteral("ChartFinder"));
    setWindowTitle(text(Text::chartFinderTitle));
    setModal(true);
    setHelpPage(*this, "chart");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(gap);
    auto* grid = new QGridLayout;
    grid->setSpacing(gap);
    grid->setColumnStretch(1, 1);
    column->addLayout(grid);
    makeSource(*grid);
    makeSearch(*grid);
    makeHits(*column);
    makeSlots(*column);
    makeButtons(*column);
    resize(usualWidth, sizeHint().height());
    showSources();
    giveMnemonics(*this);
    words->setFocus();
}

QString ChartFinderDialog::text(Text id) const {
    return textOf(boxes.texts, id);
}

void ChartFinderDialog::makeSource(QGridLayout& grid) {
    source = wideList(this);
    source->setObjectName(QStringLiteral("NavSource"));
    source->setAccessibleName(text(Text::navDataFrom));
    auto* other = new QPushButton(text(Text::navDataOther), this);
    other->setObjectName(QStringLiteral("NavOther"));
    other->setAutoDefault(false);
    summary = wrappingLabel(this);
    summary->setObjectName(QStringLiteral("NavSummary"));
    grid.addWidget(new QLabel(text(Text::navDataFrom), this), 0, 0);
    grid.addWidget(source, 0, 1);
    grid.addWidget(other, 0, 2);
    grid.addWidget(summary, 1, 1, 1, 2);
    connect(source, &QComboBox::activated, this, &ChartFinderDialog::chooseSource);
    connect(other, &QPushButton::clicked, this, &ChartFinderDialog::chooseFile);
}

/// Typing on restarts the pause; Enter searches at once and goes to what was found.
void ChartFinderDialog::makeSearch(QGridLayout& grid) {
    words = new QLineEdit(this);
    words->setObjectName(QStringLiteral("NavWords"));
    words->setAccessibleName(text(Text::navSearch));
    words->setPlaceholderText(text(Text::navSearchHint));
    words->setClearButtonEnabled(true);
    grid.addWidget(new QLabel(text(Text::navSearch), this), 2, 0);
    grid.addWidget(words, 2, 1, 1, 2);
    searchNote = wrappingLabel(this);
    searchNote->setObjectName(QStringLiteral("NavSearchNote"));
    grid.addWidget(searchNote, 3, 1, 1, 2);
    auto* pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(typingPause);
    connect(words, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    connect(pause, &QTimer::timeout, this, &ChartFinderDialog::search);
    connect(words, &QLineEdit::returnPressed, this, [this, pause] {
        pause->stop();
        search();
        hits->setFocus();
    });
}

void ChartFinderDialog::makeHits(QVBoxLayout& column) {
    hits = new QTableWidget(0, columnCount, this);
    hits->setObjectName(QStringLiteral("NavHits"));
    hits->setAccessibleName(text(Text::navHits));
    hits->setHorizontalHeaderLabels({text(Text::editorIdentifier), text(Text::navName),
                                     text(Text::navKind), text(Text::editorFrequency)});
    hits->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    hits->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    hits->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    hits->verticalHeader()->hide();
    hits->setSelectionBehavior(QAbstractItemView::SelectRows);
    hits->setSelectionMode(QAbstractItemView::SingleSelection);
    hits->setEditTriggers(QAbstractItemView::NoEditTriggers);
    hits->setTabKeyNavigation(false);
    hits->setShowGrid(false);
    const int row = fontMetrics().height() + gap;
    hits->verticalHeader()->setDefaultSectionSize(row);
    hits->setMinimumHeight((shownHits + 1) * row + gap);
    column.addWidget(hits, 1);
    connect(hits, &QTableWidget::currentCellChanged, this,
            [this](int current) { choosePlace(current); });
}

void ChartFinderDialog::makeSlots(QVBoxLayout& column) {
    stationsTitle = new QLabel(this);
    stationsTitle->setProperty("strong", true);
    stationsTitle->setTextFormat(Qt::PlainText);
    column.addWidget(stationsTitle);
    auto* grid = new QGridLayout;
    grid->setSpacing(gap);
    grid->setColumnStretch(2, 1);
    for (std::size_t i = 0; i < slotCount; ++i) {
        const int row = static_cast<int>(i);
        auto* bar = new QWidget(this);
        bar->setAutoFillBackground(true);
        bar->setPalette(look::fromSurface(slotColour(i)));
        bar->setFixedWidth(barWidth);
        offers[i] = wideList(this);
        offers[i]->setObjectName(QStringLiteral("NavSlot%1").arg(i + 1));
        offers[i]->setAccessibleName(text(slotNames[i]));
        grid->addWidget(bar, row, 0);
        grid->addWidget(new QLabel(text(slotNames[i]), this), row, 1);
        grid->addWidget(offers[i], row, 2);
        connect(offers[i], &QComboBox::activated, this,
                [this, i](int entry) { exchange(static_cast<Slot>(i), entry); });
    }
    column.addLayout(grid);
    notes = wrappingLabel(this);
    notes->setObjectName(QStringLiteral("NavNotes"));
    notes->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    constexpr int notesLines = 3;
    notes->setMinimumHeight(notesLines * notes->fontMetrics().lineSpacing());
    column.addWidget(notes);
}

void ChartFinderDialog::makeButtons(QVBoxLayout& column) {
    auto* buttons = new QDialogButtonBox(this);
    save = new QPushButton(text(Text::navSave));
    save->setObjectName(QStringLiteral("OKButton"));
    save->setProperty("primary", true);
    buttons->addButton(save, QDialogButtonBox::AcceptRole);
    auto* cancel = new QPushButton(text(Text::cancel));
    cancel->setObjectName(QStringLiteral("CancelButton"));
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    for (QPushButton* button : {save, cancel})
        button->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &ChartFinderDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ChartFinderDialog::reject);
    column.addWidget(buttons);
}

void ChartFinderDialog::chooseSource(int entry) {
    guarded([&] { finder.read(static_cast<std::size_t>(entry)); });
    showSources();
}

void ChartFinderDialog::chooseFile() {
    guarded([&] { finder.readOther(); });
    showSources();
}

void ChartFinderDialog::search() {
    guarded([&] { finder.search(words->text().toStdString()); });
    showHits();
}

void ChartFinderDialog::choosePlace(int row) {
    if (row < 0)
        return;
    guarded([&] { finder.choosePlace(finder.hits()[static_cast<std::size_t>(row)]); });
    showStations();
}

/// The first entry is none.
void ChartFinderDialog::exchange(Slot slot, int entry) {
    guarded([&] {
        const auto stations = finder.offers(slot);
        finder.exchange(slot, entry > 0
                                  ? std::optional(stations[static_cast<std::size_t>(entry) - 1])
                                  : std::nullopt);
    });
    showStations();
}

/// Other data begin with the words that stand there.
void ChartFinderDialog::showSources() {
    source->clear();
    for (const NavPlace& place : finder.sources())
        source->addItem(plain(finder.titleOf(place)));
    const auto read = finder.source();
    source->setCurrentIndex(read ? static_cast<int>(*read) : -1);
    source->setEnabled(source->count() > 0);
    summary->setText(plain(finder.summary()));
    words->setEnabled(read.has_value());
    search();
}

/// The first hit is chosen at once.
void ChartFinderDialog::showHits() {
    hits->setCurrentCell(-1, -1);
    hits->setRowCount(static_cast<int>(finder.hits().size()));
    for (int row = 0; row < hits->rowCount(); ++row) {
        const auto line = finder.lineOf(finder.hits()[static_cast<std::size_t>(row)]);
        const std::string* cells[] = {&line.identifier, &line.name, &line.kind, &line.frequency};
        for (int i = 0; i < columnCount; ++i)
            hits->setItem(row, i, new QTableWidgetItem(plain(*cells[i])));
    }
    searchNote->setText(plain(finder.searchNote()));
    searchNote->setVisible(!searchNote->text().isEmpty());
    if (hits->rowCount() > 0)
        hits->setCurrentCell(0, 0);
    else
        showStations();
}

void ChartFinderDialog::showStations() {
    const auto place = finder.place();
    stationsTitle->setText(
        place ? text(Text::navStations).arg(plain(finder.lineOf(*place).identifier)) : QString());
    for (std::size_t i = 0; i < slotCount; ++i)
        showOffers(static_cast<Slot>(i));
    notes->setText(plain(finder.notes()));
    save->setEnabled(finder.mayMake());
}

void ChartFinderDialog::showOffers(Slot slot) {
    QComboBox& list = *inSlot(offers, slot);
    list.clear();
    list.setEnabled(finder.place().has_value());
    if (!finder.place())
        return;
    list.addItem(text(Text::navNoStation));
    list.setCurrentIndex(0);
    for (const std::size_t station : finder.offers(slot)) {
        list.addItem(plain(finder.offerText(station)));
        if (inSlot(finder.stations(), slot) == station)
            list.setCurrentIndex(list.count() - 1);
    }
}

void ChartFinderDialog::accept() {
    bool made = false;
    guarded([&] { made = finder.make(); });
    if (made)
        QDialog::accept();
}

} // namespace tarnel
