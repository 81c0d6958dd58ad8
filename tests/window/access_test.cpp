#include "window/dials/instrument_view.h"
#include "window/student_fixture.h"

#include <QAccessible>
#include <QDialog>

namespace tarnel {
namespace {

using testing::HasSubstr;

/// Uses the window as a screen reader does: through Qt's accessibility interface alone.
class Ear : public Student {
  protected:
    using Found = std::vector<QAccessibleInterface*>;
    static void collect(QAccessibleInterface* from, Found& found) {
        found.push_back(from);
        for (int i = 0; i < from->childCount(); ++i) {
            EXPECT_EQ(from->indexOfChild(from->child(i)), i);
            collect(from->child(i), found);
        }
    }
    Found everything() {
        Found found;
        collect(QAccessible::queryAccessibleInterface(window.get()), found);
        return found;
    }
    QAccessibleInterface& the(QAccessible::Role role, const char* name, int number = 0) {
        for (QAccessibleInterface* each : everything())
            if (each->role() == role && !each->state().invisible &&
                each->text(QAccessible::Name).endsWith(QLatin1String(name)) && number-- == 0)
                return *each;
        throw std::runtime_error(std::string("nothing is called ") + name);
    }
    void press(QAccessibleInterface& pressed) {
        pressed.actionInterface()->doAction(pressed.actionInterface()->actionNames().first());
        QApplication::processEvents();
        settle();
    }
    /// Sets a dial by its number, and says where it then stands.
    double turn(QAccessibleInterface& dial, double value) {
        dial.valueInterface()->setCurrentValue(value);
        QApplication::processEvents();
        settle();
        return dial.valueInterface()->currentValue().toDouble();
    }
    void ask(const char* item) {
        for (const auto& each : form->exerciseMenu.exercises)
            if (each->name() == item)
                each->click();
        settle();
        form->QAform1.activePanel()->nextButton.click();
        settle();
    }
    /// What was announced last.
    std::string heard() { return find<QWidget>("Announcer").accessibleName().toStdString(); }
};

TEST_F(Ear, APressDoesWhatAClickDoes) {
    open();
    press(the(QAccessible::CheckBox, "Hide aircraft"));
    EXPECT_EQ(form->UserControl11.c_AirplaneEN, 0);
    EXPECT_TRUE(the(QAccessible::CheckBox, "Hide aircraft").state().checked);
    QAccessibleInterface& fast = the(QAccessible::RadioButton, "x 4");
    EXPECT_THAT(fast.text(QAccessible::Description).toStdString(), HasSubstr("4 of 4, "));
    press(fast);
    EXPECT_TRUE(form->rateQuadruple.chosen());
    press(the(QAccessible::PageTab, "Wind"));
    EXPECT_TRUE(form->pages.wind.chosen());
    EXPECT_TRUE(the(QAccessible::PageTab, "Wind").state().selected);
    QAccessibleInterface& kinds = the(QAccessible::ComboBox, "Instrument 1 (selection)");
    EXPECT_EQ(kinds.child(2)->text(QAccessible::Name), "Std. VOR");
    press(*kinds.child(2));
    EXPECT_EQ(form->inst2.type, vor);
    EXPECT_EQ(kinds.text(QAccessible::Description), "Std. VOR");
    press(the(QAccessible::RadioButton, "R2"));
    EXPECT_EQ(form->DMEControlFace1.mode(), DmeMode::r2);

    press(the(QAccessible::PageTab, "Replay"));
    QAccessibleInterface& hide = the(QAccessible::CheckBox, "Hide aircraft");
    QDialog box(window.get());
    box.open();
    press(hide);
    EXPECT_EQ(form->UserControl11.c_AirplaneEN, 0) << "behind a box no hand reaches it";
}

TEST_F(Ear, DialsAreTurnedByTheirNumbers) {
    open();
    EXPECT_EQ(turn(the(QAccessible::Dial, "Autopilot heading"), 310), 310);
    EXPECT_EQ(form->APControlFace1.c_HDG, 310);
    EXPECT_EQ(turn(the(QAccessible::Dial, "Autopilot altitude"), 1e9), 42000);
    EXPECT_EQ(form->APControlFace1.c_ALT, 42000);
    EXPECT_EQ(turn(the(QAccessible::Dial, "NAV 1, Frequency knob"), 2), 2);
    EXPECT_EQ(form->NAVControlFace1.dialPosition(), 1);
    EXPECT_EQ(turn(the(QAccessible::Dial, "DME source knob"), 1), 1);
    EXPECT_EQ(form->DMEControlFace1.mode(), DmeMode::r2);
    EXPECT_EQ(turn(the(QAccessible::Dial, "Course knob"), 350), 350);
    EXPECT_EQ(turn(the(QAccessible::Dial, "Heading bug knob", 1), 45), 45);
    QAccessibleInterface& hsi = the(QAccessible::Graphic, "HSI");
    EXPECT_THAT(hsi.text(QAccessible::Description).toStdString(),
                AllOf(HasSubstr("course 350"), HasSubstr("heading bug 045")));
}

// Under a cover there is nothing to be read or turned, seen or not.
TEST_F(Ear, WhatIsCoveredIsSilentAndNothingIsAFiller) {
    open();
    form->exerciseMenu.progress.click();
    ask("qdnorient");
    int covered = 0;
    for (QAccessibleInterface* each : everything()) {
        EXPECT_NE(each->role(), QAccessible::Client) << each->object()->metaObject()->className()
                                                     << qPrintable(each->object()->objectName());
        if (qobject_cast<InstrumentView*>(each->object())) {
            ++covered;
            EXPECT_EQ(each->text(QAccessible::Description), "");
            EXPECT_EQ(each->childCount(), 0);
        }
    }
    EXPECT_EQ(covered, 2);
}

TEST_F(Ear, WhatComesUpIsAnnounced) {
    open();
    form->UserControl11.c_CurrentComment = "Here";
    settle();
    EXPECT_EQ(heard(), "Comment: Here");
    ask("hldhsi");
    EXPECT_THAT(heard(), HasSubstr(form->QAform1.activePanel()->task.text()));
    QAccessibleInterface& answer = the(QAccessible::RadioButton, "Direct");
    EXPECT_THAT(answer.text(QAccessible::Description).toStdString(), HasSubstr("1 of 3"));
    press(answer);
    EXPECT_THAT(heard(), HasSubstr("direct, "));
}

} // namespace
} // namespace tarnel
