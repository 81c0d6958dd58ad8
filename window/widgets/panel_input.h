#pragma once

#include "instruments/knob_drag.h"

#include <Qt>

#include <optional>

class QFocusEvent;
class QKeyEvent;
class QWheelEvent;

namespace tarnel {

/// Counts the notches of a wheel, also of one that turns in fractions of a notch.
class WheelNotches {
  public:
    /// The whole notches since the last ones; up is positive.
    [[nodiscard]] int take(const QWheelEvent& event);

  private:
    int remainder = 0;
};

/// The steps that a key turns a knob by: the upright arrows one, page keys ten.
[[nodiscard]] std::optional<int> stepsOfKey(const QKeyEvent& event);

/// Whether a key acts like a click.
[[nodiscard]] bool isClickKey(const QKeyEvent& event);

/// Whether the focus came by the keyboard, so that it has to be seen.
[[nodiscard]] bool cameByKeyboard(const QFocusEvent& event);

/// The button that turns a knob.
[[nodiscard]] MouseButton turningButton(Qt::MouseButtons held);

} // namespace tarnel
