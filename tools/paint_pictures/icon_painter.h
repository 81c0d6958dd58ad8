// The program's icon: a small compass rose with a yellow course bar.
#pragma once

#include <QImage>
#include <QPainter>

namespace tarnel {

// Small sides get fewer and bolder marks.
QImage paintIcon(int side);
// The same on a square that begins at 0, 0, as by lines.
void paintIcon(QPainter& painter, int side);

} // namespace tarnel
