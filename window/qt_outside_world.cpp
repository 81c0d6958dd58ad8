#include "window/qt_outside_world.h"

#include <QMessageBox>

namespace tarnel {

void QtOutsideWorld::messageBox(BoxKind kind, const std::string& title, const std::string& text) {
    const auto icon = kind == BoxKind::warning ? QMessageBox::Warning : QMessageBox::Information;
    QMessageBox box(icon, QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

} // namespace tarnel
