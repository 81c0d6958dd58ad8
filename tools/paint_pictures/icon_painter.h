// The program's icon: a small compass rose with a yellow course bar.
#pragma once

#include <QImage>

namespace tarnel {

// Small sides get fewer and bolder marks.
QImage paintIcon(int side);

} // namespace tarnel
