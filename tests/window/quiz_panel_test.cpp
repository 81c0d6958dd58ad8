#include "window/exercise_student.h"
#include "window/legibility.h"
#include "window/quiz/quiz_frame.h"
#include "window/quiz/quiz_option.h"
#include "window/quiz/quiz_verdict.h"
#include "window/widgets/cover_plate.h"
#include "window/widgets/quiz_list.h"

#include <QWheelEvent>

namespace tarnel {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* positionStudy = ":qa:,Which radial of MUN are you on?\n"
                                      ":qb:,What is your QDM to MUN?\n"
                                      ":qc:,Which way will the bar of the HSI move?\n"
                                      ":a1:,235\n:a2:,055\n:a3:,To the left\n:s:,flight.ts\n---\n";
constexpr const char* orientationStudy = ":qa:,Which radial of MUN are you on?\n"
                                         ":qb:,What is your QDM to MAH?\n"
                                         ":qc:,Relative bearing of MUN?\n"
                                         ":a1:,315\n:a2:,240\n:a3:,120\n:s:,flight.ts\n---\n";
constexpr const char* adfStudy =
    ":qr1:,270\n:qr2:,110\n:qr3:,000\n:qr4:,090\n:qm1:,270\n:qm2:,090\n:qm3:,255\n:qm4:,000\n"
    ":rb1:,090\n:rb2:,270\n:rb3:,300\n:rb4:,330\n"
    ":a1:,110\n:a2:,größer\n:a3:,255\n:a4:,kleiner\n:a5:,330\n:s:,flight.ts\n---\n";
constexpr const char* qdmStudy = ":qa:,090 NDB MNE\n:a5:,120\n:a6:,045\n:a7:,NDB MNE\n"
                                 ":a1:,075\n:a2:,increase\n:a3:,left\n:a4:,decrease\n"
                                 ":s:,flight.ts\n---\n";
constexpr const char* windStudy = ":qa:,100\n:qb:,20\n:a3:,10.0\n:a4:,right\n:a5:,4.8\n:a6:,right\n"
                                  ":a2:,Head\n:a1:,17.3\n:a7:,1.45\n:qc:,Inbound\n:qd:,TAS\n"
                                  ":s:,flight.ts\n---\n";

/// Ten questions, as exercises with drawn headings need them.
std::string holdingStudy() {
    std::string text;
    for (int i = 0; i < 10; ++i)
        text += ":qc:,MUN\n:a1:,09" + std::to_string(i) +
                "\n:a2:,070\n:a3:,Standard\n:s:,flight.ts\n---\n";
    return text;
}

class QuizPanelTest : public ExerciseStudent {
  protected:
    void SetUp() override {
        ExerciseStudent::SetUp();
        for (const std::string prefix : {"", "e-"}) {
            writeStudy(prefix + "hsi.sty", positionStudy);
            writeStudy(prefix + "orientation.sty", orientationStudy);
            writeStudy(prefix + "adfpos.sty", adfStudy);
            writeStudy(prefix + "qdm.sty", std::string(qdmStudy) + qdmStudy);
            writeStudy(prefix + "wind.sty", windStudy);
            writeStudy(prefix + "HSIHLD.sty", holdingStudy());
        }
    }
    std::string verdict(const char* name) {
        auto& label = inQuiz<QuizVerdict>(name);
        return label.isVisible() ? label.text().toStdString() : "";
    }
    QAbstractButton& offer(const std::vector<const char*>& names, const QString& text) {
        for (const char* name : names)
            if (auto& button = inQuiz<QAbstractButton>(name); button.text() == text)
                return button;
        throw std::runtime_error("no such offer");
    }
};

// Typing and arrows go through the list; only Enter answers, and it goes on at the end.
TEST_F(QuizPanelTest, PositionByKeyboardAlone) {
    begin(Item::hsiPosition);
    EXPECT_FALSE(find<QWidget>("PageChart").isVisible());
    ASSERT_EQ(focus(), "Combo1");
    EXPECT_THAT(quiz->findChild<QWidget*>("Frame1")->accessibleName().toStdString(),
                HasSubstr("Which radial of MUN are you on?"));
    auto& radials = inQuiz<QuizList>("Combo1");
    press(Qt::Key_Return);
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(verdict("Text11"), "");

    type("2360"); // no entry begins with 236
    EXPECT_EQ(radials.currentText(), "230");
    press(Qt::Key_Down);
    EXPECT_EQ(radials.currentText(), "235");
    EXPECT_EQ(verdict("Text11"), "");
    press(Qt::Key_Return);
    EXPECT_EQ(verdict("Text11"), "235");
    EXPECT_THAT(inQuiz("Text11").accessibleName().toStdString(), HasSubstr("235, CORRECT"));
    EXPECT_EQ(focus(), "Combo2");
    type("120");
    press(Qt::Key_Return);
    EXPECT_EQ(verdict("Text12"), "120");
    EXPECT_THAT(inQuiz("Text12").accessibleName().toStdString(), HasSubstr("120, WRONG"));
    type("3");
    press(Qt::Key_Enter);
    EXPECT_EQ(verdict("Text13"), "To the left");

    EXPECT_EQ(focus(), "Command1");
    press(Qt::Key_Escape);
    EXPECT_TRUE(form->exercise.runs());
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "Combo1");
    EXPECT_EQ(inQuiz<QLabel>("Label1").text(), "Attempts: 1     Correct: 0     Performance: 0%");
}

TEST_F(QuizPanelTest, TheWheelAndTheMouseOverAListAnswerNothing) {
    begin(Item::hsiPosition);
    auto& list = inQuiz<QuizList>("Combo2");
    QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &wheel);
    settle();
    EXPECT_EQ(list.currentIndex(), 0);
    list.activated(0);
    settle();
    EXPECT_EQ(verdict("Text12"), "");
    list.setCurrentIndex(12);
    list.activated(12);
    settle();
    EXPECT_EQ(verdict("Text12"), "055");
}

// Digits answer the row with the keyboard, or the first open one from anywhere in the window.
TEST_F(QuizPanelTest, DigitsAnswerAndSolutionFolds) {
    begin(Item::hsiHolding);
    EXPECT_THAT(inQuiz<QLabel>("Label2").text().toStdString(), HasSubstr("inbound 070"));
    const int height = quiz->height();
    find<QWidget>("UserControl13_0").setFocus();
    press(Qt::Key_1);
    EXPECT_EQ(verdict("Label8"), "direct");
    EXPECT_EQ(focus(), "Option1");
    inQuiz("Option15").setFocus();
    press(Qt::Key_1);
    EXPECT_EQ(verdict("Label11"), "Left");
    EXPECT_EQ(focus(), "Option1");
    press(Qt::Key_9);
    EXPECT_EQ(verdict("Label9"), "");
    offer({"Option1", "Option2", "Option3", "Option4", "Option5"}, "250").click();
    settle();
    EXPECT_EQ(verdict("Label9"), " 250");

    choose("Command27");
    EXPECT_EQ(verdict("Label11"), "right");
    EXPECT_THAT(inQuiz("Label11").accessibleName().toStdString(), Not(HasSubstr("WRONG")));
    EXPECT_EQ(verdict("Own_Label11"), "Left");
    EXPECT_THAT(inQuiz("Own_Label11").accessibleName().toStdString(), HasSubstr("WRONG"));
    EXPECT_FALSE(inQuiz("Own_Label8").isVisible());
    EXPECT_TRUE(inQuiz("Command7").isVisible());
    EXPECT_EQ(focus(), "Command7");
    EXPECT_LE(quiz->height(), height);
    press(Qt::Key_Return);
    EXPECT_FALSE(inQuiz("Command7").isVisible());
    EXPECT_EQ(verdict("Label11"), "right");
}

TEST_F(QuizPanelTest, FliesTheQuestionAndComesBack) {
    begin(Item::qdm);
    offer({"Option50", "Option49", "Option48", "Option46"}, "075").click();
    settle();
    EXPECT_EQ(verdict("Label27"), "075");
    choose("Command15");
    settle();
    ASSERT_EQ(focus(), "Command6");
    EXPECT_FALSE(inQuiz("Option38").isVisible());
    EXPECT_THAT(inQuiz<QLabel>("Label32").text().toStdString(), HasSubstr("090 NDB MNE"));
    press(Qt::Key_2);
    press(Qt::Key_Return);
    EXPECT_TRUE(form->flight.flies());
    EXPECT_EQ(inQuiz<QAbstractButton>("Command6").text(), "Stop SIM");
    EXPECT_FALSE(inQuiz("ReplayClock").isVisible()) << "it would stand still";
    EXPECT_FALSE(find<QWidget>("Frame2").isEnabled()) << "a flight is kept or called back at rest";
    fly(5);
    choose("Command7");
    EXPECT_FALSE(form->flight.flies());
    EXPECT_EQ(verdict("Label25"), "");
    EXPECT_EQ(verdict("Label27"), "075");
    EXPECT_EQ(focus(), "Option40");
}

TEST_F(QuizPanelTest, WindIsTypedAndCommitted) {
    begin(Item::wind);
    ASSERT_EQ(focus(), "Text4");
    EXPECT_EQ(inQuiz<QLabel>("WindKnown").text(), "Inbound, TAS");
    EXPECT_TRUE(inQuiz("WindRule").isVisible());
    EXPECT_FALSE(inQuiz("Option47").isEnabled());
    type("17");
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "Option47");
    EXPECT_EQ(inQuiz<QLabel>("Label43").text(), "kt");
    press(Qt::Key_1);
    EXPECT_EQ(verdict("Label34"), "Head 17.3");
    EXPECT_FALSE(inQuiz("Text4").isVisible());
    type("3");
    press(Qt::Key_Return);
    press(Qt::Key_3);
    EXPECT_EQ(verdict("Label36"), "Right 3");
    type("5");
    press(Qt::Key_Return);
    press(Qt::Key_3);
    EXPECT_EQ(verdict("Label35"), "right 4.8");
    type("1");
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "Text8");
    type("50");
    press(Qt::Key_Return);
    EXPECT_EQ(verdict("Label37"), "1.45 min.sec");
    EXPECT_EQ(focus(), "Command12");
}

TEST_F(QuizPanelTest, OrientationCoversTheInstruments) {
    begin(Item::orientation);
    const auto covered = [this] {
        int count = 0;
        for (const auto* plate : window->findChildren<CoverPlate*>())
            count += plate->isVisible();
        return count;
    };
    EXPECT_EQ(covered(), 2);
    EXPECT_FALSE(find<QWidget>("UserControl13_1").isVisible());
    choose("Command2");
    EXPECT_EQ(covered(), 0);
    EXPECT_TRUE(find<QWidget>("UserControl13_1").isVisible());
    choose("Command1");
    EXPECT_EQ(covered(), 2);
    choose("Command3");
    EXPECT_EQ(covered(), 0);
    EXPECT_FALSE(quiz->isVisible());
    EXPECT_TRUE(find<QWidget>("PageChart").isVisible());
    form->exerciseMenu.exercises[static_cast<std::size_t>(Item::orientation)]->click();
    settle();
    EXPECT_TRUE(quiz->isVisible());
    EXPECT_FALSE(find<QWidget>("PageChart").isVisible());
}

TEST_F(QuizPanelTest, TellsWhatIsWrongWithTheStudyFile) {
    std::filesystem::remove(folder / "default/study/e-dgHLD.sty");
    begin(Item::dgHolding);
    EXPECT_TRUE(inQuiz("StudyNotice2").isVisible());
    EXPECT_THAT(inQuiz<QLabel>("StudyNotice2").text().toStdString(), HasSubstr("dgHLD.sty"));
    EXPECT_FALSE(inQuiz("Option11").isVisible());
    EXPECT_EQ(focus(), "Command28");
    choose("Command4");
    EXPECT_FALSE(form->exercise.runs());
}

/// Every prompt has the height that its lines take, and every offer the width of its text.
void expectWholeTexts(const QuizPanel& quiz, bool inOneLine, const std::string& where) {
    for (const auto* label : quiz.findChildren<QLabel*>())
        if (label->isVisible() && label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                << qPrintable(label->text()) << where;
        }
    for (const auto* option : quiz.findChildren<QuizOption*>())
        if (option->isVisible()) {
            EXPECT_GE(option->width(), inOneLine ? option->tightWidth() : option->brokenWidth())
                << qPrintable(option->text()) << where;
            EXPECT_GE(option->height(), 30);
        }
}

// Nothing is cut off or overlaps, fresh, judged, revealed or folded; the panel stays where it is.
TEST_F(QuizPanelTest, HasRoomForEveryFrame) {
    for (const StringTable* texts : {&germanTable(), &englishTable()})
        for (const QSize size : {QSize(960, 540), QSize(1024, 768), QSize(1280, 800)})
            for (const Item item : {Item::adfPosition, Item::qdm, Item::hsiPosition,
                                    Item::hsiHolding, Item::wind, Item::orientation}) {
                const std::string where = " " + std::to_string(static_cast<int>(item)) + " at " +
                                          std::to_string(size.width());
                open(*texts, size);
                const QRect instrument = find<QWidget>("UserControl13_0").geometry();
                begin(item, *texts, size);
                EXPECT_EQ(find<QWidget>("UserControl13_0").geometry(), instrument) << where;
                ExercisePanel& panel = *form->QAform1.activePanel();
                const auto expectRoom = [&] {
                    settle();
                    expectRoomForAll(*quiz, where);
                    expectWholeTexts(*quiz, size.width() >= 1280, where);
                };
                expectRoom();
                if (panel.rows[0]->list)
                    panel.rows[0]->list->pick(1);
                else
                    panel.rows[1]->options.front()->click();
                expectRoom();
                panel.solutionButton.click();
                expectRoom();
                if (!panel.flyButton.visible())
                    continue;
                panel.flyButton.click();
                expectRoom();
            }
}

} // namespace
} // namespace tarnel
