#include "window/frame/window_picture.h"

#include "window/frame/main_window.h"
#include "window/widgets/dressing.h"

#include <QApplication>

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

} // namespace tarnel
