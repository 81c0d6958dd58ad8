#include "window/dials/floating_gyro.h"

#include "look/look.h"
#include "window/widgets/cover_plate.h"
#include "window/widgets/form_binding.h"

#include <QCloseEvent>
#include <QPainter>
#include <QShortcut>

namespace tarnel {

namespace {

constexpr int startSize = 300;
constexpr int smallestSize = 200;
constexpr int margin = 6;

} // namespace

additional_DG::additional_DG(PanelControls& controls, const ExerciseConduct& conduct,
                             BoxDesk& boxDesk, PictureStore& pictures, QWidget* parent)
    : QWidget(parent, Qt::Tool), panel(controls), exercise(conduct), boxes(boxDesk) {
    setObjectName(QStringLiteral("additional_DG"));
    setWindowTitle(textOf(boxes.texts, Text::floatingGyro));
    gyro = new InstrumentView(panel.UserControl_DG, pictures, boxes.texts, this);
    gyro->guard = [this](const std::function<void()>& action) { boxes.guarded(action); };
    plate = new CoverPlate(boxes.texts, this);
    resize(startSize, startSize);
    setMinimumSize(smallestSize, smallestSize);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void additional_DG::refresh() {
    const bool wanted = panel.floatingGyroBox.value() == 1;
    if (wanted != isVisible())
        setVisible(wanted);
    if (!wanted)
        return;
    const QuestionCover cover = exercise.cover();
    gyro->setVisible(!cover.instruments);
    plate->setVisible(cover.instruments);
    plate->setReason(textOf(boxes.texts, cover.reason));
    gyro->refresh();
}

void additional_DG::closeEvent(QCloseEvent* event) {
    panel.floatingGyroBox.set(0);
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
