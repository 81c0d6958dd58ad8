#pragma once

#include "shell/box_desk.h"
#include "shell/chart_display.h"
#include "shell/course_desk.h"
#include "shell/debrief_controls.h"
#include "shell/document_desk.h"
#include "shell/file_desk.h"
#include "shell/flight_desk.h"
#include "shell/recent_files.h"
#include "shell/trainer_controls.h"
#include "window/widgets/form_binding.h"

#include <functional>

class QAction;
class QMenuBar;

namespace tarnel {

/// What the menus show and act on.
struct MenuModel {
    TrainerControls& controls;
    CheckBox& floatingGyroBox;
    const HandHistory& history;
    ChartDisplay& display;
    FlightDesk& flights;
    FileDesk& files;
    RecentFiles& recentFiles;
    DebriefControls& debrief;
    CourseDesk& courses;
    DocumentDesk& documents;
    BoxDesk& boxes;
    std::function<void(char)> pressKey;
    QAction& placeByKeys;
    QAction& turnByKeys;
    QAction& fullScreen;
    std::function<void()> help; ///< shows the page of what has the keyboard
    std::function<void()> keys; ///< shows the list of all keys
    std::function<void()> exit;
};

/// Builds the menu bar.
void buildMenus(QMenuBar& bar, const MenuModel& model, FormBinding& binding);

} // namespace tarnel
