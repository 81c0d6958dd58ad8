#include "window/window_picture.h"

#include "window/application.h"
#include "window/main_window.h"

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>

namespace tarnel {

QPixmap windowPicture(Form1& form, QSize size) {
    dressApplication(form.texts, QString::fromStdString(form.UserControl11.c_MainAppPath.get()));
    MainWindow window(form);
    window.resize(size);
    window.show();
    QApplication::processEvents();
    window.refresh();
    QApplication::processEvents();
    return window.grab();
}

QByteArray pictureBytes(const QPixmap& picture, const QString& fileName) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QByteArray format = QFileInfo(fileName).suffix().toLatin1();
    const bool written = !format.isEmpty() && picture.save(&buffer, format.constData());
    return written ? buffer.data() : QByteArray();
}

} // namespace tarnel
