#include "window/chart/station_editing.h"

#include "window/chart/chart_view.h"
#include "window/chart/station_dialog.h"
#include "window/widgets/text_of.h"

#include <QMenu>

namespace tarnel {

StationEditing::StationEditing(StationDesk& stationDesk, StationPage& controls, BoxDesk& boxDesk,
                               ChartView& chart)
    : desk(stationDesk), page(controls), boxes(boxDesk), view(chart) {
    chart.onEditStation = [this](Slot slot) { edit(slot); };
    chart.onStationMenu = [this](std::optional<Slot> slot, QPoint at) { showMenu(slot, at); };
}

void StationEditing::edit(Slot slot) {
    auto* dialog = new StationDialog(desk, boxes, slot, view.window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void StationEditing::addEditor(QMenu& menu, Slot slot) {
    const QString station = QString::fromStdString(desk.toEdit(slot).name);
    QAction* action = menu.addAction(textOf(boxes.texts, Text::editStation) + QLatin1Char(' ') +
                                     QString(station).replace('&', "&&"));
    QObject::connect(action, &QAction::triggered, &menu, [this, slot] { edit(slot); });
}

/// The switches are those of the strip's page.
void StationEditing::addSwitches(QMenu& menu, Slot slot) {
    const StationPage::Switches switches = page.switches()[static_cast<std::size_t>(slot)];
    for (CheckBox* box : {switches.station, switches.dme}) {
        if (!box)
            continue;
        QAction* action = menu.addAction(textOf(boxes.texts, *box->caption()));
        action->setObjectName(
            QString::fromUtf8(box->name().data(), static_cast<qsizetype>(box->name().size())));
        action->setCheckable(true);
        action->setChecked(box->value() == 1);
        QObject::connect(action, &QAction::triggered, &menu,
                         [this, box] { boxes.guarded([box] { box->click(); }); });
    }
}

void StationEditing::showMenu(std::optional<Slot> slot, QPoint at) {
    auto* menu = new QMenu(&view);
    menu->setObjectName(QStringLiteral("StationMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (std::size_t i = 0; i < slotCount; ++i)
        if (!slot || *slot == static_cast<Slot>(i))
            addEditor(*menu, static_cast<Slot>(i));
    if (slot) {
        menu->addSeparator();
        addSwitches(*menu, *slot);
    }
    menu->popup(at);
}

} // namespace tarnel
