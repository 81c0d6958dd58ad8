#pragma once

#include "shell/form_1.h"

#include <QSize>
#include <QString>

namespace tarnel {

/// Writes the window as it would show `form` now into a picture file; the format follows the name.
/// Needs a QApplication. False if the file can't be written.
bool writeWindowPicture(Form1& form, const QString& file, QSize size = {1280, 800});

} // namespace tarnel
