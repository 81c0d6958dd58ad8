#pragma once

class QAbstractButton;

namespace tarnel {

/// The width that a button's text takes in bold, as it is when the button is the chosen one.
[[nodiscard]] int boldTextWidth(const QAbstractButton& button);

} // namespace tarnel
