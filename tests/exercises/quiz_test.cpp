#include "core/run_time_error.h"
#include "exercise_fixture.h"

namespace tarnel {
namespace {

using enum StudyColumn;

/// The life of a question, told with exercises that need little: HSI position for the order and the
/// counting, QDM for the flight.
class QuizTest : public ExerciseTest {
  protected:
    static std::vector<StudyRecord> positions(int count) {
        std::vector<StudyRecord> records;
        for (int i = 0; i < count; ++i)
            records.push_back(recordOf({{qa, "question " + std::to_string(i)},
                                        {ans1, "90"},
                                        {ans2, "90"},
                                        {ans3, "Nach links"},
                                        {sessionName, std::to_string(i) + ".ts"}}));
        return records;
    }
    static std::vector<StudyRecord> flights() {
        return std::vector<StudyRecord>(8,
                                        recordOf({{qa, "1"}, {ans1, "10"}, {sessionName, "q.ts"}}));
    }
    const std::string right = "Combo1=090; Combo2=090; Combo3=Nach links; ";
    const std::string wrong = "Combo1=095; ";
    const std::string next = "Command1; ";
};

TEST_F(QuizTest, GoesThroughTheQuestionsInOrderAndRepeatsWhatWasWrong) {
    start(1, positions(3));
    play(right + next + "Text1>question 1; " + wrong + next + "Text1>question 1");
    EXPECT_EQ(form.activePanel()->place(), (QuestionPlace{2, 3}));
    play("title>HSI ÜBUNGEN POSITION ( 2 von 3); " + next + "Text1>question 2; " + // passed
         next + "Text1>question 0; " + wrong + next + "Text1>question 0; result>2; " +
         "c_QASessionFileName>app\\default\\sessions\\0.ts");
}

TEST_F(QuizTest, AtRandomFollowsTheDrawFromItsSecondPlace) {
    QuestionDraw draw([this] { return seed; });
    draw.shuffle(5);
    const auto question = [](int number) { return "Text1>question " + std::to_string(number); };
    get<CheckBox>("Check1").set(1);
    start(1, positions(6));
    for (int round = 0; round < 2; ++round)
        for (const int slot : {1, 2, 3, 4, 5, 0})
            play(question(draw.question(slot)) + "; " + wrong + next);
    // In order from where it stands.
    play(question(draw.question(1)) + "; Check1; Command1; " + question(draw.question(1) + 1));
    start(1, positions(1));
    play("Text1>question 0");
}

TEST_F(QuizTest, AsksWhatWentWrongUntilEachWasRightOnce) {
    std::vector<std::int64_t> keys;
    form.mistakes = [&](const Course&, ExerciseType, const std::vector<std::int64_t>& all) {
        keys = all;
        return MistakeRound({3, 1});
    };
    get<CheckBox>("Check1").set(1);
    start(1, positions(5));
    play("Mistakes1; Check1; Mistakes1"); // one order goes out with the other
    EXPECT_EQ(get<CheckBox>("Check1").value(), 0);
    play(next + "Text1>question 3; " + wrong + next + "Text1>question 1; " + next + // passed
         "Text1>question 3; " + right + next + "Text1>question 1; " + right + next);
    EXPECT_EQ(shown("StudyNotice1"), std::string(germanTable()[Text::mistakesAllRight]));
    EXPECT_FALSE(form.posed());
    EXPECT_EQ(get<CheckBox>("Mistakes1").value(), 0);
    play(next + "Text1>question 2");
    EXPECT_EQ(keys.size(), 5U);
    form.mistakes = nullptr; // no log, no mistakes
    form.open(shippedCourse("app"), ExerciseType::hsiPosition, QAform::Order::mistakes);
    EXPECT_EQ(shown("StudyNotice1"), std::string(germanTable()[Text::noMistakes]));
}

TEST_F(QuizTest, TellsEachAnsweredRowWithWhatItTrains) {
    std::vector<std::string> told;
    form.onJudged = [&](const JudgedRow& row) {
        told.push_back(std::to_string(row.row + 1) + "/" + std::to_string(row.rows) + " " +
                       std::string(germanTable()[row.spot]) + " " + row.given + "|" + row.answer +
                       (row.right ? "+" : "-"));
    };
    start(1, positions(1));
    play(wrong + "Combo3=Nach links");
    start(3, std::vector<StudyRecord>(8, recordOf({{ans1, "250"}, // offset, right turns
                                                   {ans2, "090"},
                                                   {ans3, "Standard"},
                                                   {sessionName, "h.ts"}})));
    play("Option13; Option14");
    EXPECT_EQ(told,
              (std::vector<std::string>{"1/3 Andere Richtungen 095|90-",
                                        "3/3 Wohin der Kursbalken wandert Nach links|Nach links+",
                                        "1/4 Offset Entries von links Offset|offset+",
                                        "4/4 Erste Kurve nach einem Offset Entry Left|left+"}));
}

TEST_F(QuizTest, CountsWhatWasAnsweredAndWritesOnce) {
    start(1, positions(3));
    play("Label1>Versuche: 0; " + next + "Command2; " + next + "stat hsipos_total>-");
    EXPECT_EQ(store.flushes, 0) << "a solution seen is no answer";
    play(right + next);
    EXPECT_EQ(store.flushes, 1);
    play(wrong + "Command2; " + next + right + next);
    EXPECT_EQ(store.flushes, 3);
    play("stat hsipos_total 0>2; stat hsipos_total 2>1; stat hsipos_total>3; stat hsipos_bad 0>1; "
         "stat hsipos_bad>1; Label1>Versuche: 3     Richtige: 2     Performance: 66%");
}

TEST_F(QuizTest, SumsOnlyTheQuestionsOfTheFile) {
    store.setValue("qxr1", "stats", "hsipos_total 2", "40");
    store.setValue("qxr1", "stats", "hsipos_total", "99");
    start(1, positions(2));
    play(right + next + "stat hsipos_total>1");
}

TEST_F(QuizTest, StatisticsStandNonsenseAndForget) {
    for (const char* key : {"hsipos_total", "hsipos_bad", "hsipos_total 0"})
        store.setValue("qxr1", "stats", key, "many");
    start(1, positions(2));
    play("Label1>Versuche: 0");
    store.setValue("qxr1", "stats", "hsipos_total 0", "1e300");
    store.setValue("qxr1", "stats", "hsipos_bad 1", "-7");
    play(wrong + next + "stat hsipos_total>2147483647; stat hsipos_bad>1");
    store.setValue("qxr1", "stats", "hsipos_total", "2");
    store.setValue("qxr1", "stats", "hsipos_bad", "5");
    EXPECT_EQ(statisticLine(form.statistics.of("hsipos"), germanTable()),
              "Versuche: 2     Richtige:-3     Performance:-150%");
    form.statistics.prepare();
    for (int times = 0; times < 2; ++times) {
        form.statistics.reset();
        play("stat hsipos_total>-; stat dummy>0");
    }
    CountingStore untouched;
    Statistics(untouched).reset();
    EXPECT_EQ(untouched.stat("dummy"), "0") << "without deleting a section that is absent";
    EXPECT_THROW(CountingStore().deleteSection("qxr1", "stats"), RunTimeError);
}

TEST_F(QuizTest, EachExerciseHasItsPanelFileTitleAndStem) {
    const struct {
        int type;
        const char *file, *frame, *next, *stem, *title;
    } table[] = {
        {1, "hsi.sty", "Frame1", "Command1", "hsipos", "HSI ÜBUNGEN POSITION"},
        {2, "stdvor.sty", "Frame1", "Command1", "stdvor", "STD. VOR ÜBUNGEN POSITION"},
        {3, "HSIHLD.sty", "Frame2", "Command28", "hsihld", "HSI HOLDING ÜBUNGEN"},
        {4, "dgHLD.sty", "Frame2", "Command28", "dghld", "DG HOLDING ÜBUNGEN"},
        {5, "adfpos.sty", "Frame11", "Command6", "adfpos", "ADF POSITION ÜBUNG"},
        {6, "qdm.sty", "Frame20", "Command9", "qdm", "QDM ÜBUNGEN"},
        {7, "qdr.sty", "Frame20", "Command9", "qdr", "QDR ÜBUNGEN"},
        {8, "wind.sty", "Frame29", "Command12", "wind", "WIND ÜBUNGEN"},
        {9, "dmearc.sty", "Frame2", "Command28", "dmearc", "DME ARC ÜBUNGEN"},
        {10, "orientation.sty", "Frame1", "Command1", "hsipos", "ORIENTIERUNGSÜBUNGEN"},
    };
    for (const auto& [type, file, frame, nextButton, stem, name] : table) {
        SCOPED_TRACE(type);
        std::string bytes;
        for (int i = 0; i < 8; ++i)
            bytes += writeStudyRecord(recordOf({{sessionName, "s.ts"}}), type);
        files = {{studyPath(file), bytes}};
        set(type);
        EXPECT_TRUE(shown("title").starts_with(std::string(name) + " ("));
        for (const char* other : {"Frame1", "Frame2", "Frame11", "Frame20", "Frame29"})
            EXPECT_EQ(get<FormFrame>(other).visible(), other == std::string(frame)) << other;
        // A wrong answer counts one under the exercise's stem.
        AnswerRow& row = *form.activePanel()->rows[0];
        for (const auto& entry : row.entries)
            entry->field.type("1");
        if (row.list)
            row.list->pick(5);
        else
            row.options.back()->click();
        play(std::string(nextButton) + "; stat " + stem + "_total>" + (type == 10 ? "2" : "1"));
    }
}

TEST_F(QuizTest, AnotherLanguageHasItsOwnFiles) {
    QAform english(state, surroundings(englishTable()));
    english.c_MainAppPath = "app\\";
    const auto record = [](const char* question) {
        return writeStudyRecord(recordOf({{qa, question}}), 1);
    };
    files = {{studyPath("hsi.sty"), record("German")},
             {studyPath("e-hsi.sty"), record("English")},
             {studyPath("orientation.sty"), record("for all")}};
    const AnswerRow& row = *english.panel(PanelId::frame1).rows[0];
    english.c_QAtype = 1;
    EXPECT_EQ(row.prompt.text(), "English");
    english.c_QAtype = 10;
    EXPECT_EQ(row.prompt.text(), "for all");
    files[studyPath("e-orientation.sty")] = record("English too");
    english.c_QAtype = 10;
    EXPECT_EQ(row.prompt.text(), "English too");
    EXPECT_EQ(english.activePanel()->frame.text(), "ORIENTATION EXERCISES ( 1 of 1)");
}

TEST_F(QuizTest, AStudyFileThatCannotBeReadIsToldAndCanBeLeft) {
    start(1, positions(2));
    files.clear();
    set(1);
    play("StudyNotice1>Die Übungsdatei kann nicht gelesen werden: hsi.sty; Text1>hidden; "
         "Command2.enabled>0; c_QASessionFileName>");
    EXPECT_FALSE(list("Combo1").visible());
    list("Combo1").pick(3);
    play("Command1; StudyNotice1>Die Übungsdatei kann nicht gelesen werden: hsi.sty; Command3; "
         "c_QAtype>0");
    EXPECT_EQ(store.flushes, 0);

    start(1, positions(1));
    play("StudyNotice1>hidden; Text1>question 0");
    EXPECT_TRUE(list("Combo1").visible());
    files[studyPath("hsi.sty")] += ":qa:,cut";
    set(1);
    play("Text1>question 0"); // what is complete can be asked
    EXPECT_TRUE(shown("StudyNotice1").ends_with("hsi.sty (Frage 2, Zeile 9)"));
    files[studyPath("hsi.sty")] = "";
    set(1);
    EXPECT_TRUE(shown("StudyNotice1").starts_with("In der Übungsdatei stehen keine"));
    start(1, positions(302));
    play("title>HSI ÜBUNGEN POSITION ( 1 von 301)");
    EXPECT_TRUE(label("StudyNotice1").visible());
}

// The solution takes the place of the verdict's word, not of what the student said.
TEST_F(QuizTest, AWrongAnswerStaysBesideTheSolution) {
    start(1, positions(1));
    const auto& rows = form.activePanel()->rows;
    const auto expectFirst = [&](RowState is, Judgement verdict, const char* given) {
        EXPECT_EQ(rows[0]->state(), is);
        EXPECT_EQ(rows[0]->verdict(), verdict);
        EXPECT_EQ(rows[0]->given(), given);
    };
    expectFirst(RowState::open, Judgement::notYet, "");
    play(wrong + "Text11>-FALSCH");
    expectFirst(RowState::judged, Judgement::wrong, "095");
    play("Combo2=090; Command2; Text11>90");
    expectFirst(RowState::revealed, Judgement::wrong, "095");
    EXPECT_EQ(rows[1]->verdict(), Judgement::right);
    EXPECT_EQ(rows[2]->verdict(), Judgement::notYet);
    play(next);
    expectFirst(RowState::open, Judgement::notYet, "");
    EXPECT_EQ(rows[1]->given(), "");
}

TEST_F(QuizTest, AQuestionWithoutItsSessionCanOnlyBePassedOrLeft) {
    start(6, flights());
    EXPECT_TRUE(form.posed());
    form.sessionMissing("no flight");
    EXPECT_FALSE(form.posed());
    play("StudyNotice20>no flight; title>QDM ÜBUNGEN ( 1 von 8)");
    for (const char* button : {"Command10", "Command15"})
        EXPECT_FALSE(get<CommandButton>(button).visible()) << button;
    form.activePanel()->rows[0]->options[0]->choose();
    EXPECT_EQ(form.activePanel()->rows[0]->state(), RowState::notAsked);
    play("Command9; title>QDM ÜBUNGEN ( 2 von 8); StudyNotice20>hidden");
    EXPECT_EQ(store.flushes, 0);
    EXPECT_TRUE(form.posed());
    EXPECT_TRUE(get<CommandButton>("Command10").visible());
}

TEST_F(QuizTest, LeavingStopsJudgingAndRequests) {
    start(1, positions(2));
    play("Command3; c_QAtype>0; c_QASessionFileName>");
    EXPECT_EQ(form.activePanel(), nullptr);
    play(right + next + "result>0");
    EXPECT_EQ(store.flushes, 0);
    for (const int type : {-1, 0, 11}) {
        set(type);
        play("c_QAtype>" + std::to_string(type) + "; c_QASessionFileName>");
    }
    set(1);
    play("Text1>question 0"); // a start begins at the front
}

TEST_F(QuizTest, FoldsAllPanelsButThePositions) {
    start(1, positions(1));
    form.c_smallFrame = true;
    play("Frame1>4250; Frame2>1100; Frame11>1100; Frame20>1100; Frame29>1100; " + next +
         "c_smallFrame>0; Frame29>4250");
    form.c_smallFrame = true;
    set(1);
    EXPECT_FALSE(form.c_smallFrame);
}

class FlightOfAQuestionTest : public QuizTest {
  protected:
    void SetUp() override {
        QuizTest::SetUp();
        start(6, flights());
        form.c_QASessionFileName = "";
        play("Command15");
    }
};

TEST_F(FlightOfAQuestionTest, IsAskedForAndEndedByTheNegatedCode) {
    play("c_QAFly>3; c_TrackDelta>3; result>4; Frame20>1100; c_QASessionFileName>");
    form.c_QAFly = -3;
    play("Frame20>4250; c_QASessionFileName>app\\default\\sessions\\q.ts");
}

TEST_F(FlightOfAQuestionTest, IsEndedByGoingOnAndByLeaving) {
    play("Command9; c_QAFly>-3; c_TrackDelta>0; result>2; title>QDM ÜBUNGEN ( 2 von 8); "
         "Command15; Command10; c_QAFly>-3; result>6; Frame20>1100; "
         "c_QASessionFileName>app\\default\\sessions\\q.ts; "
         "Command15; Command8; c_QAFly>-3; c_QAtype>0; c_QASessionFileName>; c_showResult>0");
}

TEST_F(FlightOfAQuestionTest, HasACodeForEachPanelThatFlies) {
    const std::pair<int, const char*> codes[] = {
        {-2, "Frame2"}, {-3, "Frame20"}, {-4, "Frame29"}, {-5, "Frame11"}};
    for (const auto& [code, frame] : codes) {
        form.c_smallFrame = true;
        form.c_QAFly = static_cast<std::int16_t>(code);
        for (const auto& [other, name] : codes)
            EXPECT_EQ(get<FormFrame>(name).height(), name == frame ? 4250 : 1100);
        EXPECT_TRUE(get<FormFrame>(frame).visible());
    }
}

TEST_F(QuizTest, RestsWithoutAStartAndOpensThePowerTips) {
    EXPECT_EQ(form.c_QAtype, 1) << "without a start";
    EXPECT_EQ(form.activePanel(), nullptr);
    EXPECT_EQ(label("Text1").colours().back, 0x808080U);
    form.DisplayQuestion();
    form.LoadPowerTip();
    std::string opened;
    form.showPowerTips = [&](const std::string& path) { opened = path; };
    form.LoadPowerTip();
    EXPECT_EQ(opened, "app\\pwr.rtf");
}

} // namespace
} // namespace tarnel
