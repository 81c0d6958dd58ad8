#include "window/qt_outside_world.h"

#include <QMessageBox>

namespace tarnel {

void QtOutsideWorld::messageBox(const std::string& title, const std::string& text) {
    QMessageBox box(QMessageBox::Warning, QString::fromStdString(title),
                    QString::fromStdString(text), QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace tarnel
