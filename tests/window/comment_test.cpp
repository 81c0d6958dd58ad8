#include "window/chart/chart_view.h"
#include "window/chart/comment_card.h"
#include "window/frame/instrument_panel.h"
#include "window/student_fixture.h"
#include "window/widgets/replay_bar.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <gmock/gmock.h>

namespace tarnel {
namespace {

class CommentStudent : public Student {
  protected:
    QLabel& comment() { return find<QLabel>("Text2"); }
    void write(const char* text) {
        if (!findShown<QCheckBox>("WriteComments").isChecked())
            click("WriteComments");
        QTest::keyClicks(&findShown<QLineEdit>("Text8"), QString::fromLatin1(text));
        click("CommentStart");
    }
    QRect placeOf(QWidget& widget) { return {widget.mapTo(window.get(), QPoint()), widget.size()}; }
    template <class Widget>
    Widget& the() {
        return *window->findChild<Widget*>();
    }
};

TEST_F(CommentStudent, WritesACommentInFlightAndReadsItInTheReplay) {
    open();
    click("Command6");
    fly(10);
    write("Turn left now");
    EXPECT_EQ(find("CommentStart").text(), "Stop");
    fly(10);
    click("CommentStart");
    EXPECT_EQ(findShown<QLineEdit>("Text8").text(), "");
    EXPECT_EQ(findShown<QLabel>("Label13").text(), "2");
    fly(10);
    click("Command6");
    EXPECT_FALSE(comment().isVisible());

    auto& bar = findShown<ReplayBar>("HScroll1");
    bar.setValue(12);
    settle();
    ASSERT_TRUE(comment().isVisible());
    EXPECT_EQ(comment().text(), "Turn left now");
    EXPECT_GE(QFontInfo(comment().font()).pixelSize(), 15);
    click("Command12");
    bar.setValue(13);
    settle();
    EXPECT_FALSE(comment().isVisible());
}

// Comments come and go with the samples: nothing may move for it, and no instrument be covered.
TEST_F(CommentStudent, ReadsACommentBelowTheChartWhileTheWindowKeepsStill) {
    for (const QSize size :
         {QSize(960, 540), QSize(1024, 768), QSize(1280, 800), QSize(1920, 1080)}) {
        open(germanTable(), size);
        const QRect panel = placeOf(the<InstrumentPanel>());
        const int left = the<ChartView>().x();
        click("Command6");
        form->UserControl11.startComment(
            "Das Radial 110 schneiden, dann den Kurs halten, bis die Nadel zu laufen beginnt; "
            "danach nach links auf den Inbound-Kurs und die Drift durch den Wind beobachten.");
        fly(10);
        const QRect chart = placeOf(the<ChartView>());
        const QRect card = placeOf(the<CommentCard>());
        ASSERT_TRUE(comment().isVisible());
        EXPECT_GE(comment().height(), comment().heightForWidth(comment().width()));
        if (size.height() >= 1080) {
            EXPECT_LE(comment().height(), comment().parentWidget()->height())
                << "nothing to scroll";
        }
        EXPECT_GT(card.top(), chart.bottom());
        EXPECT_FALSE(card.intersects(panel));
        EXPECT_EQ(placeOf(the<InstrumentPanel>()), panel);
        EXPECT_GE(the<ChartView>().x(), left);

        form->UserControl11.stopComment();
        fly(10);
        EXPECT_FALSE(comment().isVisible());
        EXPECT_FALSE(the<CommentCard>().isVisible()) << "an empty card takes no room";
        if (size.height() >= 800) {
            EXPECT_EQ(placeOf(the<ChartView>()), chart);
        }
    }
}

TEST_F(CommentStudent, ShowsTheMarkOnlyWithACommentAndWhileItBlinks) {
    open();
    auto& mark = find<QLabel>("Text3");
    form->commentPanel.mark.setVisible(true);
    settle();
    EXPECT_FALSE(mark.isVisible());
    form->UserControl11.c_CurrentComment = "Here";
    settle();
    EXPECT_TRUE(mark.isVisible());
    form->commentPanel.mark.setVisible(false);
    settle();
    EXPECT_FALSE(mark.isVisible());
}

} // namespace
} // namespace tarnel
