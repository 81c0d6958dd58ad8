#include "window/chart/vector_box.h"

#include "window/widgets/tick_box.h"

namespace tarnel {

QWidget* vectorBox(CheckBox& control, ChartDisplay& display, FormBinding& binding,
                   QWidget* parent) {
    auto* box = new TickBox(parent);
    box->setTristate(true);
    binding.bind(control, *box, [&display] { display.stepVectors(); });
    return box;
}

} // namespace tarnel
