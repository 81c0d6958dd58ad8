#include "support/told.h"
#include "window/chart/chart_view.h"
#include "window/dials/instrument_view.h"
#include "window/radios/autopilot_module.h"
#include "window/radios/nav_module.h"
#include "window/student_fixture.h"
#include "window/widgets/knob_widget.h"

#include <QDialog>
#include <QMouseEvent>

#include <functional>

namespace tarnel {
namespace {

/// A hand that holds something while a box comes up, the focus goes, or another window is in front.
class HeldMouse : public Student {
  protected:
    void holdAndMove(QWidget& widget, QPoint from, int pixels) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        moveHeld(widget, from + QPoint(pixels, 0));
    }
    static void moveHeld(QWidget& widget, QPoint to) {
        QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&widget, &move);
    }
    /// The ways in which the release is lost.
    std::vector<std::function<void(QWidget&)>> losses() {
        return {[this](QWidget&) {
                    QDialog box(window.get());
                    box.open(); // modal, as boxes are
                    QApplication::processEvents();
                },
                [](QWidget& widget) {
                    widget.hide();
                    widget.show();
                },
                [](QWidget& widget) {
                    widget.setEnabled(false);
                    widget.setEnabled(true);
                },
                [](QWidget& widget) { // the button came up elsewhere
                    QMouseEvent move(QEvent::MouseMove, QPointF(1, 1), QPointF(1, 1), Qt::NoButton,
                                     Qt::NoButton, {});
                    QApplication::sendEvent(&widget, &move);
                },
                [](QWidget& widget) { tell(*widget.window(), QEvent::WindowDeactivate); },
                [](QWidget& widget) { tell(widget, QEvent::FocusOut); },
                [](QWidget& widget) { tell(widget, QEvent::UngrabMouse); }};
    }
    static void tell(QWidget& widget, QEvent::Type type) {
        QFocusEvent away(QEvent::FocusOut, Qt::OtherFocusReason);
        QEvent other(type);
        QApplication::sendEvent(&widget, type == QEvent::FocusOut ? &away : &other);
    }
};

TEST_F(HeldMouse, LostWithoutAReleaseEndsRatesAndDrags) {
    open();
    auto& speed = window->findChild<AutopilotModule*>()->knob(AutopilotKnob::airSpeed);
    auto& hsi = find<InstrumentView>("UserControl13_1");
    auto& chart = *window->findChild<ChartView*>();
    auto& receiver = *find<NavModule>("NAVControlFace1").findChild<KnobWidget*>();
    const QPoint bug = QPoint(hsi.width(), hsi.height()) * 0.912;
    const auto state = [this] {
        form->autopilotTimer();
        const GeoPosition place = form->UserControl11.aircraft.published();
        return told(form->APControlFace1.c_TAS, form->inst3.instrument.c_HDGbug, place.latitude,
                    place.longitude, form->NAVControlFace1.c_SetFreq);
    };
    const auto expectLetGo = [&](QWidget& widget, QPoint from, const auto& lose) {
        holdAndMove(widget, from, 30);
        form->autopilotTimer();
        lose(widget);
        const std::string left = state();
        moveHeld(widget, from + QPoint(90, 50));
        EXPECT_EQ(state(), left);
    };
    for (const auto& lose : losses()) {
        form->APControlFace1.c_TAS = 120;
        expectLetGo(speed, {20, 20}, lose);
        EXPECT_GT(form->APControlFace1.c_TAS, 120);
        expectLetGo(hsi, bug, lose);
        expectLetGo(chart, {100, 200}, lose);
        const std::string before = state();
        QTest::mousePress(&receiver, Qt::LeftButton, {}, receiver.rect().center());
        lose(receiver);
        QTest::mouseRelease(&receiver, Qt::LeftButton, {}, receiver.rect().center());
        EXPECT_EQ(state(), before) << "no click";
    }
}

TEST_F(HeldMouse, ABoxOfTheTrainerStopsTheRateEvenWithoutAWindow) {
    open();
    form->APControlFace1.mouseDown(AutopilotKnob::altitude, 100);
    form->APControlFace1.mouseMove(900, MouseButton::left);
    form->autopilotTimer();
    form->documents.showAbout();
    const double reached = form->APControlFace1.c_ALT;
    EXPECT_GT(reached, 6000);
    form->autopilotTimer();
    EXPECT_EQ(form->APControlFace1.c_ALT, reached);
}

} // namespace
} // namespace tarnel
