#include "window/chart/chart_view.h"
#include "window/chart/comment_card.h"
#include "window/chart/comment_mark.h"
#include "window/frame/instrument_panel.h"
#include "window/student_fixture.h"

namespace tarnel {
namespace {

class CommentStudent : public Student {
  protected:
    QLabel& comment() { return find<QLabel>("Text2"); }
    QRect placeOf(QWidget& widget) { return {widget.mapTo(window.get(), QPoint()), widget.size()}; }
    template <class Widget>
    Widget& the() {
        return *window->findChild<Widget*>();
    }
};

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
    for (const auto& [comment, blinks] : {std::pair("", true), {"Here", true}, {"Here", false}}) {
        form->commentPanel.mark.setVisible(blinks);
        form->UserControl11.c_CurrentComment = comment;
        settle();
        EXPECT_EQ(the<CommentMark>().isVisible() && the<CommentMark>().isLit(), *comment && blinks);
    }
}

} // namespace
} // namespace tarnel
