#include "support/nav_files.h"
#include "window/student_fixture.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace tarnel {
namespace {

class ChartFinderDialogTest : public Student {
  protected:
    void openFinder(const NavFolders& folders) {
        world.navigation = folders;
        open();
        find<QAction>("mnuNewChart").trigger();
        settle();
    }
    QDialog* dialog() { return window->findChild<QDialog*>(QStringLiteral("ChartFinder")); }
    template <class Widget>
    Widget& in(const char* name) {
        return *dialog()->findChild<Widget*>(QString::fromLatin1(name));
    }
    /// Presses a key where the keyboard is.
    void press(Qt::Key key, int times = 1) {
        for (; times > 0; --times)
            QTest::keyClick(dialog()->focusWidget(), key);
    }

    NavFiles files;
};

TEST_F(ChartFinderDialogTest, MakesAChartByKeysAlone) {
    openFinder(files.folders());
    EXPECT_TRUE(in<QLabel>("NavSummary").text().contains("line 6: expected latitude"));
    EXPECT_FALSE(in<QPushButton>("OKButton").isEnabled());
    EXPECT_EQ(dialog()->focusWidget(), &in<QLineEdit>("NavWords"));
    QTest::keyClicks(dialog()->focusWidget(), QStringLiteral("sbg"));
    press(Qt::Key_Return);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(in<QTableWidget>("NavHits").rowCount(), 2);
    press(Qt::Key_Down);
    EXPECT_TRUE(in<QComboBox>("NavSlot3").currentText().startsWith("SBG, SALZBURG NDB"));
    press(Qt::Key_Tab);
    EXPECT_EQ(dialog()->focusWidget(), &in<QComboBox>("NavSlot1"));
    press(Qt::Key_Down);
    EXPECT_TRUE(in<QComboBox>("NavSlot1").currentText().startsWith("MUN"));
    EXPECT_TRUE(in<QComboBox>("NavSlot2").currentText().startsWith("SBG"));
    press(Qt::Key_Tab, 5);
    EXPECT_EQ(dialog()->focusWidget(), &in<QPushButton>("OKButton"));
    press(Qt::Key_Space); // the file dialog is cancelled
    ASSERT_NE(dialog(), nullptr);
    world.chosen = files.path + "/new.map";
    press(Qt::Key_Space);
    settle();
    QTest::qWait(1);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(form->UserControl11.slot(Slot::vor1).name.get(), "MUN");
}

TEST_F(ChartFinderDialogTest, AsksForAFileWhereNoneIsFound) {
    openFinder({});
    EXPECT_TRUE(in<QLabel>("NavSummary").text().startsWith("No navigation data"));
    EXPECT_FALSE(in<QLineEdit>("NavWords").isEnabled());
    world.chosen = files.path + "/navaids.csv";
    in<QPushButton>("NavOther").click();
    EXPECT_EQ(in<QComboBox>("NavSource").currentText().toStdString(), *world.chosen);
    in<QLineEdit>("NavWords").setText(QStringLiteral("nowhere"));
    QTest::qWait(200);
    EXPECT_TRUE(in<QLabel>("NavSearchNote").text().startsWith("Nothing found"));
    press(Qt::Key_Escape);
    settle();
    QTest::qWait(1);
    EXPECT_EQ(dialog(), nullptr);
}

} // namespace
} // namespace tarnel
