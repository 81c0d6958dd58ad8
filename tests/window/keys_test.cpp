#include "window/student_fixture.h"

#include <QAccessible>
#include <QAction>
#include <QLineEdit>
#include <QSet>
#include <QSpinBox>

#include <algorithm>

namespace tarnel {
namespace {

/// A student with the window in front and a hand on the keyboard.
class KeyStudent : public Student {
  protected:
    void openInFront() {
        open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void press(Qt::Key key) {
        QWidget* focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : window.get(), key);
        settle();
    }
    UserControl2& sim() { return form->UserControl11; }
};

TEST_F(KeyStudent, DrivesTheModesByTheLettersOfTheStatusBar) {
    openInFront();
    press(Qt::Key_R);
    EXPECT_EQ(sim().c_NAVRadBorder, on);
    press(Qt::Key_M);
    EXPECT_TRUE(form->flight.flies());
}

TEST_F(KeyStudent, TypesTheSameLettersIntoFields) {
    openInFront();
    click("WriteComments");
    settle();
    auto& text = findShown<QLineEdit>("Text8");
    EXPECT_TRUE(text.hasFocus());
    for (const Qt::Key key :
         {Qt::Key_M, Qt::Key_P, Qt::Key_H, Qt::Key_T, Qt::Key_V, Qt::Key_W, Qt::Key_R})
        press(key);
    EXPECT_EQ(text.text().toLower(), "mphtvwr");
    EXPECT_EQ(QString::fromStdString(form->commentPanel.text.text()), text.text());
    press(Qt::Key_Return);
    EXPECT_EQ(sim().comments.text(0), text.text().toStdString());
    turnTo("PageWind");
    findShown<QSpinBox>("WindSpeed").setFocus();
    press(Qt::Key_M);
    press(Qt::Key_H);
    EXPECT_FALSE(form->flight.flies());
    EXPECT_EQ(sim().c_AirplaneEN, 1);
}

// Tab comes to every control of the shown page, and each tells a name.
TEST_F(KeyStudent, ReachesEveryControlOfThePagesByTab) {
    openInFront();
    for (const char* tab : {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
        turnTo(tab);
        find("Command6").setFocus();
        QSet<QWidget*> reached;
        for (int i = 0; i < 120; ++i) {
            if (auto* focus = QApplication::focusWidget())
                reached.insert(focus);
            press(Qt::Key_Tab);
        }
        auto* strip = find("Command6").parentWidget();
        for (auto* button : strip->findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || !button->isEnabled())
                continue;
            const auto sameGroup = [button](QWidget* widget) {
                return widget == button ||
                       (button->autoExclusive() && widget->parent() == button->parent());
            };
            EXPECT_TRUE(std::ranges::any_of(reached, sameGroup)) // arrows go on in a group
                << qPrintable(button->objectName());
            EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty())
                << qPrintable(button->objectName());
        }
    }
}

// An option button's arrows choose, and it is one to a screen reader too.
TEST_F(KeyStudent, ArrowsTakeTheChoiceOfAGroupAlong) {
    openInFront();
    find("Option5").setFocus();
    press(Qt::Key_Right);
    auto* focus = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    EXPECT_TRUE(form->rateDouble.chosen() && focus && focus->isChecked());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(focus)->role(), QAccessible::RadioButton);
}

} // namespace
} // namespace tarnel
