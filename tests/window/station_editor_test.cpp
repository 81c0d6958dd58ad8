#include "window/chart/chart_view.h"
#include "window/student_fixture.h"

#include <QAction>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>

namespace tarnel {
namespace {

class StationEditorTest : public Student {
  protected:
    void edit() {
        open();
        form->stationPage.edit.set(1);
        settle();
        chart = window->findChild<ChartView*>();
    }
    QPoint symbol(Slot slot) {
        const Area& area = inSlot(form->UserControl11.picture.symbols, slot).area;
        const double scale = chart->width() / form->UserControl11.picture.size;
        return {static_cast<int>((area.left + area.width / 2) * scale),
                static_cast<int>((area.top + area.height / 2) * scale)};
    }
    QDialog* dialog() { return window->findChild<QDialog*>(QStringLiteral("station_edit")); }
    template <class Widget>
    Widget& in(const char* name) {
        return *dialog()->findChild<Widget*>(QString::fromLatin1(name));
    }
    void doubleClick(Slot slot, QPoint off = {}) {
        const QPoint at = symbol(slot) + off;
        QTest::mouseClick(chart, Qt::LeftButton, {}, at);
        QTest::mouseDClick(chart, Qt::LeftButton, {}, at);
        settle();
    }
    StationProperties& properties(Slot slot) { return form->UserControl11.slot(slot); }

    ChartView* chart = nullptr;
};

TEST_F(StationEditorTest, ADoubleClickOpensTheEditorWhichKeepsAWrongFrequency) {
    edit();
    const SplitPosition before = form->UserControl11.stations[1].position;
    doubleClick(Slot::vor2, {3, 2});
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), "Station Editor - VOR/DME blue");
    EXPECT_EQ(form->UserControl11.stations[1].position, before);
    auto& frequency = in<QLineEdit>("MaskEdBox1");
    in<QLineEdit>("Text1").setText("K@LN");
    EXPECT_FALSE(in<QLineEdit>("Text1").hasAcceptableInput());
    in<QLineEdit>("Text1").setText("KLN");
    frequency.selectAll();
    QTest::keyClicks(&frequency, "11a40");
    EXPECT_EQ(frequency.text(), "11a.40");
    in<QAbstractButton>("OKButton").click();
    settle();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_THAT(world.boxes, testing::ElementsAre(testing::HasSubstr("e.g. 110.40")));
    EXPECT_NE(properties(Slot::vor2).name.get(), "KLN");

    frequency.selectAll();
    QTest::keyClicks(&frequency, "11040");
    in<QAbstractButton>("Check2").click();
    in<QRadioButton>("Option3").click();
    QTest::keyClick(&frequency, Qt::Key_Return);
    settle();
    QTest::qWait(1);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(properties(Slot::vor2).name.get(), "KLN");
    EXPECT_EQ(properties(Slot::vor2).frequency.get(), "110.40");
    EXPECT_EQ(properties(Slot::vor2).dmeEnabled.get(), off);
    EXPECT_LT(form->UserControl11.stations[1].labelOffsetX, -500);
}

TEST_F(StationEditorTest, EscapePutsADraggedStationBackAndUndoAFinishedDrag) {
    edit();
    const SplitPosition first = form->UserControl11.stations[0].position;
    const auto now = [this] { return form->UserControl11.stations[0].position; };
    QTest::mousePress(chart, Qt::LeftButton, {}, symbol(Slot::vor1));
    QTest::mouseMove(chart, QPoint(200, 200));
    EXPECT_NE(now(), first);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(now(), first);
    QTest::mouseMove(chart, QPoint(250, 250));
    QTest::mouseRelease(chart, Qt::LeftButton, {}, QPoint(250, 250));
    EXPECT_EQ(now(), first);

    const QPoint from = symbol(Slot::vor1);
    drag(*chart, from, QPoint(300, 300) - from);
    EXPECT_NE(now(), first);
    auto& menu = find<QMenu>("mnuEdit");
    emit menu.aboutToShow();
    EXPECT_EQ(find<QAction>("mnuUndo").text(), "&Undo: Move a station");
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(now(), first);
    settle();
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(now(), first);
}

TEST_F(StationEditorTest, CancelChangesNothingAndAnNdbHasNoDme) {
    edit();
    const SplitPosition first = form->UserControl11.stations[0].position;
    QTest::mouseDClick(chart, Qt::LeftButton, {}, symbol(Slot::ndb1));
    settle();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->findChild<QAbstractButton*>(QStringLiteral("Check2")), nullptr);
    in<QLineEdit>("Text1").setText("XX");
    in<QAbstractButton>("CancelButton").click();
    QTest::qWait(1);
    EXPECT_EQ(form->UserControl11.stations[0].position, first);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_NE(properties(Slot::ndb1).name.get(), "XX");
}

TEST_F(StationEditorTest, TheContextMenuSwitchesAndEditsWithoutTheHeadingTool) {
    edit();
    const auto menu = [this] { return window->findChild<QMenu*>(QStringLiteral("StationMenu")); };
    QTest::mouseClick(chart, Qt::RightButton, {}, symbol(Slot::localizer));
    ASSERT_NE(menu(), nullptr);
    EXPECT_FALSE(form->UserControl11.picture.help.visible);
    menu()->findChild<QAction*>(QStringLiteral("Dme5On"))->trigger();
    settle();
    EXPECT_EQ(properties(Slot::localizer).dmeEnabled.get(), off);
    EXPECT_NE(properties(Slot::localizer).enabled.get(), off);
    menu()->actions().constFirst()->trigger();
    settle();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), "Station Editor - LOC red");
}

TEST_F(StationEditorTest, ASymbolIsInHandOnlyWhileChartsAreEdited) {
    edit();
    const auto shapeOver = [this](QPoint at) {
        QTest::mouseMove(chart, at);
        settle();
        return chart->cursor().shape();
    };
    EXPECT_EQ(shapeOver(symbol(Slot::vor1)), Qt::PointingHandCursor);
    EXPECT_EQ(shapeOver(symbol(Slot::vor1) + QPoint(0, 60)), Qt::CrossCursor);
    form->stationPage.edit.set(0);
    EXPECT_EQ(shapeOver(symbol(Slot::vor1)), Qt::CrossCursor);
    QTest::mouseDClick(chart, Qt::LeftButton, {}, symbol(Slot::vor1));
    settle();
    EXPECT_EQ(dialog(), nullptr);
}

} // namespace
} // namespace tarnel
