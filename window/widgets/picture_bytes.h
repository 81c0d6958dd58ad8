#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

namespace tarnel {

/// `picture` in the format that the name of a file ends in; empty if there is no such format.
[[nodiscard]] QByteArray pictureBytes(const QPixmap& picture, const QString& fileName);

} // namespace tarnel
