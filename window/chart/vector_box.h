#pragma once

#include "shell/chart_display.h"
#include "window/widgets/form_binding.h"

class QWidget;

namespace tarnel {

/// A box for the vectors on the chart. Like their key, a click goes through the three states: none,
/// the wind triangle, the turns ahead.
[[nodiscard]] QWidget* vectorBox(CheckBox& control, ChartDisplay& display, FormBinding& binding,
                                 QWidget* parent);

} // namespace tarnel
