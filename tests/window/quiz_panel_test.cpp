#include "window/exercise_student.h"
#include "window/legibility.h"
#include "window/quiz/quiz_frame.h"
#include "window/quiz/quiz_option.h"
#include "window/quiz/quiz_verdict.h"
#include "window/widgets/cover_plate.h"
#include "window/widgets/quiz_list.h"

#include <QAccessible>
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
    QAbstractButton& offer(const std::vector<const char*>& names, const QString& text) {
        for (const char* name : names)
            if (auto& button = inQuiz<QAbstractButton>(name); button.text() == text)
                return button;
        throw std::runtime_error("no such offer");
    }
};

// Typing and arrows go through the list; only Enter answers, and it goes on at the end.
TEST_F(QuizPanelTest, PositionByKeyboardAlone) {
    begin("hsipos2");
    EXPECT_FALSE(find<QTabBar>("Pages").isVisible());
    play("focus>Combo1; Frame1~Which radial of MUN are you on?; key Return");
    QApplication::activePopupWidget()->close();
    // No entry begins with 236.
    play("Text11>; type 2360; Combo1>230; key Down; Combo1>235; Text11>; key Return; Text11>235; "
         "Text11~235, CORRECT; focus>Combo2; type 120; key Return; Text12>120; "
         "Text12~120, WRONG; type 3; key Enter; Text13>To the left; focus>Command1");
    world.answer = false; // to whether a question that was begun may be lost
    play("key Escape");
    EXPECT_TRUE(form->exercise.runs());
    play("key Return; focus>Combo1; Label1>Attempts: 1     Correct: 0     Performance: 0%");
}

TEST_F(QuizPanelTest, TheWheelAndTheMouseOverAListAnswerNothing) {
    begin("hsipos2");
    auto& list = inQuiz<QuizList>("Combo2");
    QWheelEvent wheel(QPointF(5, 5), list.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &wheel);
    settle();
    EXPECT_EQ(list.currentIndex(), 0);
    for (const int index : {0, 12}) {
        list.setCurrentIndex(index);
        list.activated(index);
        settle();
        play(index == 0 ? "Text12>" : "Text12>055");
    }
}

// There is one attempt, so going through the options gives no answer.
TEST_F(QuizPanelTest, ArrowsOnlyGoThroughTheOptions) {
    begin("hldhsi");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&inQuiz("Option11"))->role(),
              QAccessible::RadioButton);
    play("focus>Option11; key Right; key Right; focus>Option13; Label8>; key Tab; focus>Option1; "
         "key Left; Label9>; key Right; key Space; focus>Option6; Label8>");
    EXPECT_NE(shown("Label9"), "");
}

// Digits answer the row with the keyboard, or the first open one from anywhere in the window.
TEST_F(QuizPanelTest, DigitsAnswerAndSolutionFolds) {
    begin("hldhsi");
    EXPECT_THAT(shown("Label2"), HasSubstr("inbound 070"));
    const int height = quiz->height();
    find<QWidget>("UserControl13_0").setFocus();
    play("key 1; Label8>direct; focus>Option1");
    inQuiz("Option15").setFocus();
    play("key 1; Label11>Left; focus>Option1; key 9; Label9>");
    offer({"Option1", "Option2", "Option3", "Option4", "Option5"}, "250").click();
    settle();
    play("Label9> 250; Command27; Label11>right; Own_Label11>Left; Own_Label11~WRONG; "
         "Own_Label8>; focus>Command7");
    EXPECT_THAT(inQuiz("Label11").accessibleName().toStdString(), Not(HasSubstr("WRONG")));
    EXPECT_LE(quiz->height(), height);
    EXPECT_TRUE(inQuiz("Command7").isVisible());
    play("key Return; Command7>; Label11>right");
}

TEST_F(QuizPanelTest, FliesTheQuestionAndComesBack) {
    begin("qdm");
    offer({"Option50", "Option49", "Option48", "Option46"}, "075").click();
    settle();
    play("Label27>075; Command15; focus>Command6; Option38>");
    EXPECT_THAT(shown("Label32"), HasSubstr("090 NDB MNE"));
    play("key 2; key Return; Command6>&Stop SIM; ReplayClock>"); // it would stand still
    EXPECT_TRUE(form->flight.flies());
    EXPECT_FALSE(find<QWidget>("Frame2").isEnabled()) << "a flight is kept or called back at rest";
    fly(5);
    play("Command7; Label25>; Label27>075; focus>Option40");
    EXPECT_FALSE(form->flight.flies());
}

TEST_F(QuizPanelTest, WindIsTypedAndCommitted) {
    begin("wind");
    EXPECT_TRUE(inQuiz("WindRule").isVisible());
    EXPECT_FALSE(inQuiz("Option47").isEnabled());
    play("focus>Text4; WindKnown>Inbound, TAS; type 17; key Return; focus>Option47; Label43>kt; "
         "key 1; Label34>Head 17.3; Text4>; type 3; key Return; key 3; Label36>Right 3; type 5; "
         "key Return; key 3; Label35>right 4.8; type 1; key Return; focus>Text8; type 50; "
         "key Return; Label37>1.45 min.sec; focus>Command12");
}

TEST_F(QuizPanelTest, OrientationCoversTheInstruments) {
    begin("qdnorient");
    const auto expectCovered = [this](bool covered) {
        int plates = 0;
        for (const auto* plate : window->findChildren<CoverPlate*>())
            plates += plate->isVisible();
        EXPECT_EQ(plates, covered ? 2 : 0);
        EXPECT_NE(find<QWidget>("UserControl13_1").isVisible(), covered);
    };
    expectCovered(true);
    for (const auto& [button, covered] :
         {std::pair("Command2", false), {"Command1", true}, {"Command3", false}}) {
        choose(button);
        expectCovered(covered);
    }
    EXPECT_FALSE(quiz->isVisible());
    EXPECT_TRUE(find<QTabBar>("Pages").isVisible());
}

TEST_F(QuizPanelTest, TellsWhatIsWrongWithTheStudyFile) {
    std::filesystem::remove(folder / "default/study/e-dgHLD.sty");
    begin("hlddg");
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
            for (const std::string item :
                 {"adfpos", "qdm", "hsipos2", "hldhsi", "wind", "qdnorient"}) {
                const std::string where = " " + item + " at " + std::to_string(size.width());
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

TEST_F(Student, IsToldTheWindThatAQuestionIsFlownIn) {
    open();
    form->exerciseMenu.exercises.front()->click(); // ADF positions
    const auto told = [&] {
        settle();
        for (const auto* label : window->findChildren<QLabel*>(QStringLiteral("QuestionWind")))
            if (label->isVisible())
                return label->text().toStdString();
        return std::string();
    };
    EXPECT_EQ(told(), "");
    for (int i = 1; i < 11; ++i)
        form->QAform1.activePanel()->nextButton.click();
    EXPECT_EQ(told(), "Wind 210/30, TAS 120");
}

} // namespace
} // namespace tarnel
