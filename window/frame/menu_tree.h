#pragma once

#include "shell/form_1.h"
#include "window/widgets/form_binding.h"

#include <functional>

class QMenuBar;

namespace tarnel {

/// What the menus do that is not the form's own.
struct MenuActions {
    std::function<void()> exit;
    std::function<void()> about;
};

/// Builds the menu bar.
void buildMenus(QMenuBar& bar, Form1& form, FormBinding& binding, const MenuActions& actions);

} // namespace tarnel
