#pragma once

#include "shell/form_1.h"

#include <QPixmap>
#include <QSize>

namespace tarnel {

/// The window as it would show `form` now. Needs a QApplication.
[[nodiscard]] QPixmap windowPicture(Form1& form, QSize size = {1280, 800});

} // namespace tarnel
