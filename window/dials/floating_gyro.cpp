#include "window/dials/floating_gyro.h"

#include "window/widgets/cover_plate.h"
#include "window/widgets/form_binding.h"
#include "window/widgets/look.h"

#include <QCloseEvent>
#include <QPainter>

namespace tarnel {

namespace {

constexpr int startSize = 300;
constexpr int smallestSize = 200;
constexpr int margin = 6;

} // namespace

additional_DG::additional_DG(Form1& owner, PictureStore& pictures, QWidget* parent)
    : QWidget(parent, Qt::Tool), form(owner) {
    setObjectName(QStringLiteral("additional_DG"));
    setWindowTitle(textOf(form.texts, Text::floatingGyro));
    gyro = new InstrumentView(form.UserControl_DG, pictures, form.texts, this);
    gyro->guard = [this](const std::function<void()>& action) { form.guarded(action); };
    plate = new CoverPlate(form.texts, this);
    resize(startSize, startSize);
    setMinimumSize(smallestSize, smallestSize);
}

void additional_DG::refresh() {
    const bool wanted = form.floatingGyroBox.value() == 1;
    if (wanted != isVisible())
        setVisible(wanted);
    if (!wanted)
        return;
    const QuestionCover cover = form.exercise.cover();
    gyro->setVisible(!cover.instruments);
    plate->setVisible(cover.instruments);
    plate->setReason(textOf(form.texts, cover.reason));
    gyro->refresh();
}

void additional_DG::closeEvent(QCloseEvent* event) {
    form.setFloatingGyroOpen(false);
    event->accept();
}

void additional_DG::resizeEvent(QResizeEvent*) {
    const int side = qMin(width(), height()) - 2 * margin;
    for (QWidget* view : std::initializer_list<QWidget*>{gyro, plate})
        view->setGeometry((width() - side) / 2, (height() - side) / 2, side, side);
}

void additional_DG::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), look::panelTop);
}

} // namespace tarnel
