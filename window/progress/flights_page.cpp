#include "window/progress/flights_page.h"

#include "shell/flight_export.h"
#include "window/progress/flights_card.h"
#include "window/progress/rows.h"
#include "window/widgets/card.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

enum Column { moment, task, attempt, score, worst, size, pinnedSign, columns };
constexpr std::int64_t megabyte = std::int64_t{1} << 20;
constexpr int mostCompared = 3;

} // namespace

FlightsPage::FlightsPage(const ProgressModel& progressModel, QWidget* parent)
    : QWidget(parent), model(progressModel) {
    setObjectName(QStringLiteral("MyFlights"));
    QVBoxLayout* column = cardColumn(*this);
    column->addLayout(cardTitle(textOf(model.texts, Text::myFlights), QString(), *this));
    table = new QTableWidget(0, columns, this);
    table->setObjectName(QStringLiteral("FlightList"));
    table->setAccessibleName(textOf(model.texts, Text::myFlights));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setFrameShape(QFrame::NoFrame);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setSectionsClickable(false);
    table->setHorizontalHeaderLabels(
        {textOf(model.texts, Text::csvTime), textOf(model.texts, Text::taskFlown),
         textOf(model.texts, Text::attempt), textOf(model.texts, Text::csvRight),
         textOf(model.texts, Text::worstFinding), textOf(model.texts, Text::fileSize), QString()});
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(table, &QTableWidget::itemSelectionChanged, this, &FlightsPage::followSelection);
    connect(table, &QTableWidget::itemActivated, this, [this] { open->click(); });
    column->addWidget(table, 1);
    column->addLayout(makeButtons());
    column->addLayout(makeLimits());
}

QPushButton* FlightsPage::button(Text caption, const char* name, std::function<void()> action) {
    auto* made = new QPushButton(textOf(model.texts, caption), this);
    made->setObjectName(QString::fromLatin1(name));
    made->setProperty("quiz", true);
    connect(made, &QPushButton::clicked, this, std::move(action));
    return made;
}

QHBoxLayout* FlightsPage::makeButtons() {
    const auto openSelected = [this] {
        std::vector<std::int64_t> ids;
        for (const LoggedFlight& flight : selected())
            ids.push_back(flight.id);
        onOpen(ids);
    };
    open = button(Text::debriefFlight, "OpenFlight", openSelected);
    compare = button(Text::compareFlights, "CompareFlights", openSelected);
    pin = button(Text::pinFlight, "PinFlight", [this] { pinSelected(); });
    save = button(Text::exportFlight, "ExportFlight", [this] { exportSelected(); });
    erase = button(Text::deleteFlight, "DeleteFlight", [this] { removeSelected(); });
    auto* line = new QHBoxLayout;
    for (QPushButton* each : {open, compare, pin, save, erase})
        line->addWidget(each);
    line->addStretch();
    line->addWidget(button(Text::backToProgress, "BackToProgress", [this] { onBack(); }));
    return line;
}

QHBoxLayout* FlightsPage::makeLimits() {
    constexpr int manyFlights = 9999;
    constexpr int manyMegabytes = 99'999;
    const auto field = [this](const char* name, int highest, Text label, auto apply) {
        auto* made = new QSpinBox(this);
        made->setObjectName(QString::fromLatin1(name));
        made->setRange(1, highest);
        made->setKeyboardTracking(false);
        made->setButtonSymbols(QAbstractSpinBox::NoButtons); // they would be too small to hit
        made->setAccessibleName(textOf(model.texts, label));
        connect(made, &QSpinBox::valueChanged, this, [this, apply](int value) {
            FlightLimits limits = model.training.limits();
            apply(limits, value);
            model.training.setLimits(limits);
            onChange();
        });
        return made;
    };
    most = field("MostFlights", manyFlights, Text::keepFlights,
                 [](FlightLimits& limits, int value) { limits.most = value; });
    megabytes = field("MostMegabytes", manyMegabytes, Text::keepMegabytes,
                      [](FlightLimits& limits, int value) { limits.mostBytes = value * megabyte; });
    auto* line = new QHBoxLayout;
    for (const auto& [label, spin] :
         {std::pair{Text::keepFlights, most}, std::pair{Text::keepMegabytes, megabytes}}) {
        auto* words = new QLabel(textOf(model.texts, label), this);
        words->setProperty("secondary", true);
        words->setBuddy(spin);
        line->addWidget(words);
        line->addWidget(spin);
        line->addSpacing(12);
    }
    auto* stay = new QLabel(textOf(model.texts, Text::pinnedStay), this);
    stay->setProperty("secondary", true);
    line->addWidget(stay, 1);
    return line;
}

void FlightsPage::fill(int row, const LoggedFlight& flight) {
    const QLocale locale = model.texts.isGerman() ? QLocale::German : QLocale::English;
    const std::array<QString, columns> cells = {
        momentOf(flight, model),
        QString::fromStdString(flight.title),
        QString::number(flight.attempt),
        scoreOf(flight, model.texts),
        worstOf(flight, model),
        locale.formattedDataSize(flight.bytes, 1, QLocale::DataSizeTraditionalFormat),
        flight.pinned ? textOf(model.texts, Text::pinned) : QString()};
    for (int column = 0; column < columns; ++column)
        table->setItem(row, column, new QTableWidgetItem(cells[static_cast<std::size_t>(column)]));
}

/// What was selected stays so, by its flight.
void FlightsPage::show(const std::vector<LoggedFlight>& flights) {
    std::vector<std::int64_t> before;
    for (const LoggedFlight& flight : selected())
        before.push_back(flight.id);
    const QSignalBlocker quiet(table);
    shown = flights;
    table->clearSelection();
    table->setRowCount(static_cast<int>(shown.size()));
    table->setSelectionMode(QAbstractItemView::MultiSelection);
    for (int row = 0; row < table->rowCount(); ++row) {
        fill(row, shown[static_cast<std::size_t>(row)]);
        if (std::ranges::count(before, shown[static_cast<std::size_t>(row)].id) > 0)
            table->selectRow(row);
    }
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    if (before.empty() && !shown.empty())
        table->selectRow(0);
    table->resizeColumnsToContents();
    table->horizontalHeader()->setSectionResizeMode(worst, QHeaderView::Stretch);
    for (const auto& [spin, value] :
         {std::pair{most, model.training.limits().most},
          std::pair{megabytes, static_cast<int>(model.training.limits().mostBytes / megabyte)}}) {
        const QSignalBlocker still(spin);
        spin->setValue(value);
    }
    followSelection();
}

void FlightsPage::takeFocus() {
    table->setFocus(Qt::OtherFocusReason);
}

std::vector<LoggedFlight> FlightsPage::selected() const {
    std::vector<LoggedFlight> flights;
    for (const QModelIndex& index : table->selectionModel()->selectedRows())
        if (static_cast<std::size_t>(index.row()) < shown.size())
            flights.push_back(shown[static_cast<std::size_t>(index.row())]);
    return flights;
}

void FlightsPage::followSelection() {
    const std::vector<LoggedFlight> flights = selected();
    const bool allPinned = !flights.empty() && std::ranges::all_of(flights, &LoggedFlight::pinned);
    open->setEnabled(flights.size() == 1);
    compare->setEnabled(flights.size() > 1 && flights.size() <= mostCompared &&
                        std::ranges::count(flights, flights[0].taskKey, &LoggedFlight::taskKey) ==
                            static_cast<std::ptrdiff_t>(flights.size()));
    pin->setText(textOf(model.texts, allPinned ? Text::unpinFlight : Text::pinFlight));
    for (QPushButton* each : {pin, erase})
        each->setEnabled(!flights.empty());
    save->setEnabled(flights.size() == 1);
}

void FlightsPage::pinSelected() {
    const std::vector<LoggedFlight> flights = selected();
    const bool pinned = !std::ranges::all_of(flights, &LoggedFlight::pinned);
    model.training.with([&](TrainingLog& log) {
        for (const LoggedFlight& flight : flights)
            log.pin(flight.id, pinned);
    });
    onChange();
}

void FlightsPage::removeSelected() {
    if (!model.boxes.confirm(Text::deleteFlight, Text::deleteFlightsQuestion))
        return;
    model.training.with([&](TrainingLog& log) {
        for (const LoggedFlight& flight : selected())
            log.remove(flight.id);
    });
    onChange();
}

void FlightsPage::exportSelected() {
    for (const LoggedFlight& flight : selected())
        exportFlight(model.training, model.boxes, flight);
}

void FlightsPage::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
}

} // namespace tarnel
