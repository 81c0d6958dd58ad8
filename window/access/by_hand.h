#pragma once

#include <functional>

class QWidget;

namespace tarnel {

/// Does on `widget` what a hand would do there, as soon as the message loop comes to it: who asks
/// through the accessibility interface waits for the call to return, and what is asked may bring up
/// a box. Where a hand could not reach the widget nothing happens: it is hidden, disabled, or
/// behind a box that has to be answered first.
void byHand(QWidget& widget, std::function<void()> action);

} // namespace tarnel
