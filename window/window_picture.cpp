#include "window/window_picture.h"

#include "window/application.h"
#include "window/main_window.h"

#include <QApplication>
#include <QPixmap>

namespace tarnel {

bool writeWindowPicture(Form1& form, const QString& file, QSize size) {
    dressApplication(form.texts, QString::fromStdString(form.UserControl11.c_MainAppPath.get()));
    MainWindow window(form);
    window.resize(size);
    window.show();
    QApplication::processEvents();
    window.refresh();
    QApplication::processEvents();
    return window.grab().save(file);
}

} // namespace tarnel
