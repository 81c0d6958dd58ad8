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
    int way = 0;
    for (const auto& lose : losses()) {
        SCOPED_TRACE(way++);
        form->APControlFace1.c_TAS = 120;
        holdAndMove(speed, {20, 20}, 40);
        form->autopilotTimer();
        EXPECT_GT(form->APControlFace1.c_TAS, 120);
        lose(speed);
        const double reached = form->APControlFace1.c_TAS;
        moveHeld(speed, {90, 20});
        form->autopilotTimer();
        EXPECT_EQ(form->APControlFace1.c_TAS, reached);

        const QPoint bug(static_cast<int>(hsi.width() * 0.912),
                         static_cast<int>(hsi.height() * 0.912));
        holdAndMove(hsi, bug, 20);
        lose(hsi);
        const int heading = form->inst3.instrument.c_HDGbug;
        moveHeld(hsi, bug + QPoint(90, 0));
        EXPECT_EQ(form->inst3.instrument.c_HDGbug, heading);

        holdAndMove(chart, {100, 200}, 30);
        lose(chart);
        const GeoPosition place = form->UserControl11.aircraft.published();
        moveHeld(chart, {200, 300});
        EXPECT_EQ(form->UserControl11.aircraft.published(), place);

        const auto frequency = form->NAVControlFace1.c_SetFreq.get();
        QTest::mousePress(&receiver, Qt::LeftButton, {}, receiver.rect().center());
        lose(receiver);
        QTest::mouseRelease(&receiver, Qt::LeftButton, {}, receiver.rect().center());
        EXPECT_EQ(form->NAVControlFace1.c_SetFreq, frequency) << "no click";
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
