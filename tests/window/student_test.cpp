#include "window/chart/chart_view.h"
#include "window/dials/instrument_view.h"
#include "window/radios/dme_selector.h"
#include "window/student_fixture.h"

#include <QComboBox>
#include <QMenuBar>
#include <QScreen>

namespace tarnel {
namespace {

TEST_F(Student, MakesOneInstrumentLarger) {
    open();
    const int before = find<QWidget>("UserControl13_0").width();
    click("Size_Combo3");
    EXPECT_GT(find<QWidget>("UserControl13_0").width(), before * 1.1);
    EXPECT_LT(find<QWidget>("UserControl13_1").width(), before);
    click("Size_Combo3");
    EXPECT_EQ(find<QWidget>("UserControl13_0").width(), before);
}

TEST_F(Student, DrawsAHeadingWithTheRightButton) {
    open();
    auto* chart = window->findChild<ChartView*>();
    const QPoint middle(chart->width() / 2, chart->height() / 2);
    QTest::mouseClick(chart, Qt::LeftButton, {}, middle); // the aircraft stands there
    QTest::mousePress(chart, Qt::RightButton, {}, middle + QPoint(60, 0));
    QTest::mouseMove(chart, middle + QPoint(100, 0));
    QTest::mouseRelease(chart, Qt::RightButton, {}, middle + QPoint(100, 0));
    settle();
    EXPECT_NEAR(form->UserControl11.c_HDG, 90, 1);
    EXPECT_EQ(form->APControlFace1.c_HDG, form->UserControl11.c_HDG.get());
    EXPECT_EQ(form->inst3.instrument.c_HDGbug, form->UserControl11.c_HDG.get());
}

// The switch lies over the chart and paints before it: that is no paint of the chart.
TEST_F(Student, TheSwitchOfTheViewRepaintsTheWholeChartAtRest) {
    open();
    form->UserControl11.turnAircraft(73);
    settle();
    const auto* chart = window->findChild<ChartView*>();
    const QRect inside = chart->rect().adjusted(10, 50, -10, -10);
    for (const char* view : {"HeadingUp", "NorthUp"}) {
        QTest::mouseClick(&findShown(view), Qt::LeftButton);
        EXPECT_EQ(form->UserControl11.c_MAPnorthUP, view == std::string("NorthUp"));
        QApplication::processEvents(); // what asks for it paints
        settle();
        const QRect onScreen(chart->mapTo(window.get(), inside.topLeft()), inside.size());
        const QImage seen = window->screen()
                                ->grabWindow(window->winId(), onScreen.x(), onScreen.y(),
                                             onScreen.width(), onScreen.height())
                                .toImage();
        const QImage wanted = window->grab(onScreen).toImage();
        int differing = 0; // smoothed edges may be some shades off where a part is painted alone
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                if (std::abs(qGray(seen.pixel(x, y)) - qGray(wanted.pixel(x, y))) > 60)
                    ++differing;
        EXPECT_LT(differing, 50) << view;
    }
}

// On every page of the strip, on the panel, over the chart, in the menu bar, and whatever rests
// while a question stands open.
TEST_F(Student, WhatIsDisabledLooksDisabled) {
    open();
    const auto changesItsLook = [](QWidget& shown, auto& control) {
        const QImage before = shown.grab().toImage();
        control.setEnabled(!control.isEnabled());
        const QImage after = shown.grab().toImage();
        control.setEnabled(!control.isEnabled());
        return before != after;
    };
    const auto expectSigns = [&](const char* where, auto isMeant) {
        int count = 0;
        for (auto* widget : window->findChildren<QWidget*>())
            if (widget->isVisible() && isMeant(*widget)) {
                EXPECT_TRUE(changesItsLook(*widget, *widget))
                    << where << qPrintable(widget->objectName())
                    << widget->metaObject()->className();
                ++count;
            }
        return count;
    };
    for (const char* page : {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
        turnTo(page);
        expectSigns(page, [](const QWidget& widget) {
            return widget.isEnabled() && (qobject_cast<const QAbstractButton*>(&widget) ||
                                          qobject_cast<const QComboBox*>(&widget));
        });
    }
    for (QAction* menu : window->menuBar()->actions())
        EXPECT_TRUE(changesItsLook(*window->menuBar(), *menu)) << qPrintable(menu->text());
    form->exerciseMenu.exercises.front()->click();
    settle();
    EXPECT_FALSE(window->findChild<DmeSelector*>()->isEnabled());
    EXPECT_GE(expectSigns("question ",
                          [](const QWidget& widget) {
                              return !widget.isEnabled() && widget.parentWidget()->isEnabled();
                          }),
              9);
}

// Whatever comes and goes below it, at the sizes where the window has the room.
TEST_F(Student, TheChartKeepsItsSize) {
    for (const StringTable* texts : {&germanTable(), &englishTable()})
        for (const QSize size : {QSize(1280, 800), QSize(1440, 900), QSize(1920, 1080)}) {
            open(*texts, size);
            const auto* chart = window->findChild<ChartView*>();
            const int width = chart->width();
            const auto expectStill = [&](const std::string& state) {
                settle();
                EXPECT_EQ(chart->width(), width) << state << " at " << size.width();
            };
            click("WriteComments");
            expectStill("author's strip");
            click("WriteComments");
            form->exerciseMenu.adfPractice[2]->click();
            expectStill("practice flight");
            for (std::size_t item = 0; item < form->exerciseMenu.exercises.size(); ++item) {
                if (exerciseItems()[item].size ==
                    ExerciseItem::Size::largeHsi) // takes it from the chart
                    continue;
                form->exerciseMenu.exercises[item]->click();
                ExercisePanel& panel = *form->QAform1.activePanel();
                const std::string name = panel.frame.text();
                expectStill("question of " + name);
                for (const auto& row : panel.rows)
                    if (row->list)
                        row->list->pick(1);
                    else if (row->state() == RowState::open)
                        row->options.front()->click();
                expectStill("answers of " + name);
                panel.solutionButton.click();
                // Its five rows stay, and the comment on them takes some of the chart.
                if (exerciseItems()[item].type != ExerciseType::adfPosition)
                    expectStill("solution of " + name);
                panel.nextButton.click();
                expectStill("next of " + name);
                panel.flyButton.click();
                form->startButton.click();
                fly(2);
                expectStill("flight in " + name);
                form->startButton.click();
                panel.cancelButton.click();
                settle();
            }
            expectStill("end");
        }
}

TEST_F(Student, OpensAndClosesTheFloatingGyro) {
    open();
    auto& gyro = find<QWidget>("additional_DG");
    EXPECT_FALSE(gyro.isVisible());
    click("FloatingGyro");
    EXPECT_TRUE(gyro.isVisible());
    gyro.close();
    settle();
    EXPECT_EQ(form->floatingGyroBox.value(), 0);
    EXPECT_FALSE(gyro.isVisible());
}

TEST_F(Student, MissingPicturesAreToldOnceAndTheNeedlesStay) {
    form = std::make_unique<Form1>(englishTable(), world, "/nonexistent");
    window = std::make_unique<MainWindow>(*form);
    window->show();
    settle();
    window->grab();
    QTest::qWait(1);
    settle();
    EXPECT_THAT(world.boxes, testing::Contains(testing::HasSubstr("dial")));
    const auto told = world.boxes.size();
    find<QComboBox>("Combo3").activated(2);
    settle();
    window->grab();
    QTest::qWait(1);
    EXPECT_EQ(world.boxes.size(), told);
}

} // namespace
} // namespace tarnel
