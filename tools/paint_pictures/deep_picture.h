// A picture painted with 16 bits a channel, so that dark gradients end without visible steps.
#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

namespace tarnel {

// A transparent picture to paint on.
QImage deepPicture(QSize size);

// Antialiased, with the origin at the centre and x and y running from -1 to 1 over the side.
void useHalfSideUnits(QPainter& painter, int side);

// The picture with 8 bits a channel; the rounding is spread by a fixed pattern of noise. Values
// that 8 bits hold exactly are kept.
QImage dithered(const QImage& deep);

} // namespace tarnel
