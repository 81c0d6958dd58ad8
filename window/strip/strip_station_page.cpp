#include "window/strip/strip_station_page.h"

#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace tarnel {

namespace {

constexpr int gapBetweenStations = 6;
constexpr int gapAfterBar = 6;

/// The name of a station's colour in the style sheet.
QString colourName(std::size_t slot) {
    constexpr std::array<const char*, slotCount> names{"First", "Second", "First", "Second",
                                                       "Localizer"};
    return QString::fromLatin1(names[slot]);
}

void showText(QLabel& label, const std::string& text) {
    if (const QString shown = QString::fromStdString(text); label.text() != shown)
        label.setText(shown);
}

} // namespace

StripStationPage::StripStationPage(const StripModel& stripModel, FormBinding& links,
                                   QWidget* parent)
    : StripPage(stripModel, links, parent) {
    auto* columns = addColumns(gapBetweenStations);
    for (std::size_t i = 0; i < slotCount; ++i)
        columns->addWidget(makeStation(i));
    // What nothing answers to rests.
    CheckBox& edit = model.controls.stationPage.edit;
    edit.setEnabled(static_cast<bool>(edit.onClick));
    addBox(*addLine(), edit);
    refresh();
    finish();
}

QLabel* StripStationPage::addLabel(QLayout& column, const char* property) {
    auto* label = new QLabel(this);
    label->setProperty(property, true);
    column.addWidget(label);
    return label;
}

QWidget* StripStationPage::makeStation(std::size_t index) {
    auto* tile = new QWidget(this);
    tile->setAttribute(Qt::WA_StyledBackground);
    tile->setObjectName(QStringLiteral("Station") + colourName(index));
    auto* column = new QVBoxLayout(tile);
    column->setContentsMargins(gapAfterBar, 0, 0, 0);
    column->setSpacing(0);
    stations[index] = {addLabel(*column, "readout"), addLabel(*column, "secondary")};
    stations[index].identifier->setObjectName(QStringLiteral("Name") + colourName(index));
    const StationPage::Switches switches = model.controls.stationPage.switches()[index];
    for (CheckBox* control : {switches.station, switches.dme})
        if (control)
            addBox(*column, *control);
    column->addStretch(1);
    return tile;
}

void StripStationPage::refresh() {
    for (std::size_t i = 0; i < slotCount; ++i) {
        const StationProperties& station = model.sim.slot(static_cast<Slot>(i));
        showText(*stations[i].identifier, station.name.get());
        showText(*stations[i].frequency, station.frequency.get());
    }
}

} // namespace tarnel
