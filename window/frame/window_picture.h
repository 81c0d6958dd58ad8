#pragma once

#include <QPixmap>
#include <QSize>

namespace tarnel {

class Form1;

/// The window as it would show `form` now. Needs a QApplication.
[[nodiscard]] QPixmap windowPicture(Form1& form, QSize size = {1280, 800});

} // namespace tarnel
