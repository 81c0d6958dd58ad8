#pragma once

#include "shell/form_1.h"
#include "window/widgets/form_binding.h"

class QWidget;

namespace tarnel {

/// A box for the vectors on the chart. Like their key, a click goes through the three states: none,
/// the wind triangle, the turns ahead.
[[nodiscard]] QWidget* vectorBox(Form1& form, FormBinding& binding, QWidget* parent);

} // namespace tarnel
