#pragma once

namespace tarnel {

/// Lets a screen reader find knobs as dials with a value. To be called once before any is made.
void installPanelAccessibility();

} // namespace tarnel
