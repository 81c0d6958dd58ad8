#include "window/widgets/picture_bytes.h"

#include <QBuffer>
#include <QFileInfo>

namespace tarnel {

QByteArray pictureBytes(const QPixmap& picture, const QString& fileName) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QByteArray format = QFileInfo(fileName).suffix().toLatin1();
    const bool written = !format.isEmpty() && picture.save(&buffer, format.constData());
    return written ? buffer.data() : QByteArray();
}

} // namespace tarnel
