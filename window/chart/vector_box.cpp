#include "window/chart/vector_box.h"

#include <QCheckBox>

namespace tarnel {

QWidget* vectorBox(CheckBox& control, ChartDisplay& display, FormBinding& binding,
                   QWidget* parent) {
    auto* box = new QCheckBox(parent);
    box->setTristate(true);
    binding.bind(control, *box, [&display] { display.stepVectors(); });
    return box;
}

} // namespace tarnel
