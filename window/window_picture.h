#pragma once

#include "shell/form_1.h"

#include <QByteArray>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace tarnel {

/// The window as it would show `form` now. Needs a QApplication.
[[nodiscard]] QPixmap windowPicture(Form1& form, QSize size = {1280, 800});

/// `picture` in the format that the name of a file ends in; empty if there is no such format.
[[nodiscard]] QByteArray pictureBytes(const QPixmap& picture, const QString& fileName);

} // namespace tarnel
