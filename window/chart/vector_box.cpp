#include "window/chart/vector_box.h"

#include "window/widgets/tick_box.h"

namespace tarnel {

QWidget* vectorBox(Form1& form, FormBinding& binding, QWidget* parent) {
    auto* box = new TickBox(parent);
    box->setTristate(true);
    binding.bind(form.chartPage.vectors, *box, [&form] { form.pressKey('V'); });
    return box;
}

} // namespace tarnel
