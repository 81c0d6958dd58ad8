#pragma once

#include "shell/box_desk.h"
#include "shell/station_desk.h"
#include "shell/strip_controls.h"

#include <QPoint>

#include <optional>

class QMenu;

namespace tarnel {

class ChartView;

/// `StationEditing`: the station editor and the context menu of stations, for a chart view.
class StationEditing {
  public:
    StationEditing(StationDesk& stationDesk, StationPage& controls, BoxDesk& boxDesk,
                   ChartView& chart);

    /// Opens the editor.
    void edit(Slot slot);
    /// Opens the context menu of a station; of all of them where none is under the pointer.
    void showMenu(std::optional<Slot> slot, QPoint at);

  private:
    void addEditor(QMenu& menu, Slot slot);
    void addSwitches(QMenu& menu, Slot slot);

    StationDesk& desk;
    StationPage& page;
    BoxDesk& boxes;
    ChartView& view;
};

} // namespace tarnel
