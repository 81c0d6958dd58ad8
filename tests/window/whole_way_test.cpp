#include "shell/memory_log.h"
#include "window/debrief/finding_list.h"
#include "window/exercise_student.h"

#include <QDateTime>
#include <QTableWidget>

#include <array>

namespace tarnel {
namespace {

/// One question from a wrong answer to progress, flown by the student in between.
class WholeWay : public ExerciseStudent {
  protected:
    void beginQuestion(const StringTable& texts) {
        world.seconds = QDateTime::currentSecsSinceEpoch();
        writeStudy(texts.isGerman() ? "qdm.sty" : "e-qdm.sty",
                   ":qa:,090 NDB MNE\n:a5:,120\n:a6:,045\n:a7:,NDB MNE\n:a1:,075\n"
                   ":a2:,increase\n:a3:,left\n:a4:,decrease\n:s:,flight.ts\n---\n");
        begin("qdm", texts);
        form->training.useLog([](TrainingDesk&) { return std::make_unique<MemoryLog>(); });
    }
    /// Presses a control, with the mouse or with nothing but the keyboard.
    void use(std::string_view control) {
        const std::string name(control);
        if (!keyboard) {
            QWidget& button = inQuizOrBelow(name.c_str());
            QTest::mouseClick(&button, Qt::LeftButton, {}, {10, button.height() / 2});
            return settle();
        }
        for (int i = 0; i < 80 && focus() != name; ++i)
            press(Qt::Key_Tab);
        ASSERT_EQ(focus(), name);
        press(Qt::Key_Space);
    }
    /// Some of the radios' buttons have names of the quiz's.
    QWidget& inQuizOrBelow(const char* name) {
        QWidget& found = quiz->findChild<QWidget*>(name) ? inQuiz(name) : findShown<QWidget>(name);
        return found.isVisible() ? found : findShown<QWidget>(name);
    }
    /// Each row, in the order that the keyboard goes.
    void answer(bool rightly) {
        constexpr std::array<std::ptrdiff_t, 4> right{-1, 2, 0, 0}; // larger, left, below
        for (std::size_t row = 0; row < right.size(); ++row) {
            const auto& options = panel().rows[row]->options;
            const auto isRight = [&](std::ptrdiff_t option) {
                return row == 0 ? options[static_cast<std::size_t>(option)]->text() == "075"
                                : option == right[row];
            };
            std::ptrdiff_t wanted = 0;
            while (isRight(wanted) != rightly)
                ++wanted;
            if (keyboard)
                press(static_cast<Qt::Key>(Qt::Key_1 + wanted));
            else
                use(options[static_cast<std::size_t>(wanted)]->name());
        }
    }
    /// From the question's first sample, by turns to a heading.
    void flyAttempt(std::int16_t heading) {
        EXPECT_EQ(focus(), keyboard ? "Command6" : focus()) << "the start comes first";
        EXPECT_EQ(form->inst3.instrument.c_HDGbug.get(), form->UserControl11.c_HDG.get())
            << "the panel stands as it did at the first sample";
        use("Command6");
        form->coupling.setHeadingBug(heading);
        fly(70);
        use("Command6");
        use("Debrief");
        ASSERT_TRUE(form->debrief.isOpen());
        EXPECT_EQ(form->modePanel.text(), form->texts[Text::debriefMode]);
        EXPECT_EQ(form->UserControl11.c_AirplaneEN, 1) << "the moment is seen on the chart";
        EXPECT_EQ(focus(), "DebriefFindings");
    }
    ExercisePanel& panel() { return *form->QAform1.activePanel(); }

    bool keyboard = false;
};

TEST_F(WholeWay, FromAWrongAnswerToProgress) {
    for (const StringTable* texts : {&englishTable(), &germanTable()})
        for (const bool byKeyboard : {true, false}) {
            keyboard = byKeyboard;
            SCOPED_TRACE(texts->isGerman());
            beginQuestion(*texts);
            answer(false);
            use(panel().solutionButton.name());
            EXPECT_TRUE(form->replay.runs());
            use(panel().flyButton.name());
            flyAttempt(120);
            const std::vector<Sample> first = form->debrief.attempt()->samples;
            const auto& rows = find<FindingList>("DebriefFindings").rows();
            EXPECT_EQ(rows.front().verdict, Verdict::wrong);
            if (keyboard)
                press(Qt::Key_Down);
            else
                use("DebriefNext");
            use("DebriefFlyAgain");
            flyAttempt(20);
            EXPECT_EQ(form->debrief.attempt()->number, 2);
            EXPECT_EQ(form->debrief.attempt()->samples.front(), first.front());
            ASSERT_EQ(form->debrief.compared().size(), 1U);
            EXPECT_EQ(form->debrief.compared().front().samples, first) << "looking changed nothing";
            EXPECT_FALSE(rows.front().earlier.isEmpty());
            use("DebriefClose");
            use("Command7");
            use(panel().mistakesBox.name());
            use(panel().nextButton.name());
            answer(true);
            use(panel().nextButton.name());
            EXPECT_EQ(panel().notice.text(), (*texts)[Text::mistakesAllRight]);
            use(panel().cancelButton.name());
            window->findChild<QAction*>("mnuProgress")->trigger();
            settle();
            EXPECT_EQ(find<QTableWidget>("ProgressExercises").item(0, 1)->text(), "4 / 8");
        }
}

} // namespace
} // namespace tarnel
