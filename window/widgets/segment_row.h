#pragma once

#include "window/widgets/form_binding.h"

#include <initializer_list>

class QWidget;

namespace tarnel {

/// The buttons of a group side by side, joined to one bar, the chosen one raised. `name` is what a
/// screen reader calls the group.
[[nodiscard]] QWidget* segmentRow(FormBinding& binding, const QString& name,
                                  std::initializer_list<OptionButton*> options, QWidget* parent);

} // namespace tarnel
