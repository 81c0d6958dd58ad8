#pragma once

#include <QString>

namespace tarnel {

/// The looks of all standard controls, with sizes multiplied by `scale`.
[[nodiscard]] QString sheetFor(double scale);

} // namespace tarnel
