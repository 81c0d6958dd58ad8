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
    int shown() { return std::stoi(label("Text1").text().substr(9)); }
    void next() { click("Command1"); }
    void answerRight() {
        pick("Combo1", "090");
        pick("Combo2", "090");
        pick("Combo3", "Nach links");
    }
    void answerWrong() { pick("Combo1", "095"); }
};

TEST_F(QuizTest, GoesThroughTheQuestionsInOrderAndRepeatsWhatWasWrong) {
    start(1, positions(3));
    answerRight();
    next();
    EXPECT_EQ(shown(), 1);
    answerWrong();
    next();
    EXPECT_EQ(shown(), 1);
    EXPECT_EQ(title(), "HSI ÜBUNGEN POSITION ( 2 von 3)");
    EXPECT_EQ(form.activePanel()->place(), (QuestionPlace{2, 3}));
    next();
    EXPECT_EQ(shown(), 2) << "passed without an answer";
    next();
    EXPECT_EQ(shown(), 0);
    answerWrong();
    next();
    EXPECT_EQ(shown(), 0);
    EXPECT_EQ(takeResult(), 2);
    EXPECT_EQ(form.c_QASessionFileName.get(), "app\\default\\sessions\\0.ts");
}

TEST_F(QuizTest, AtRandomFollowsTheDrawFromItsSecondPlace) {
    QuestionDraw draw([this] { return seed; });
    draw.shuffle(5);
    get<CheckBox>("Check1").set(1);
    start(1, positions(6));
    for (int round = 0; round < 2; ++round)
        for (const int slot : {1, 2, 3, 4, 5, 0}) {
            EXPECT_EQ(shown(), draw.question(slot));
            answerWrong();
            next();
        }
    const int random = shown();
    get<CheckBox>("Check1").click();
    next();
    EXPECT_EQ(shown(), random + 1) << "in order from where it stands";
    start(1, positions(1));
    EXPECT_EQ(shown(), 0);
}

TEST_F(QuizTest, CountsWhatWasAnsweredAndWritesOnce) {
    start(1, positions(3));
    EXPECT_EQ(get<TextPanel>("Label1").text(), "Versuche: 0");
    next();
    click("Command2");
    next();
    EXPECT_EQ(store.stat("hsipos_total"), "-") << "a solution seen is no answer";
    EXPECT_EQ(store.flushes, 0);
    answerRight();
    next();
    EXPECT_EQ(store.flushes, 1);
    answerWrong();
    click("Command2");
    next();
    answerRight();
    next();
    EXPECT_EQ(store.flushes, 3);
    EXPECT_EQ(store.stat("hsipos_total 0"), "2");
    EXPECT_EQ(store.stat("hsipos_total 2"), "1");
    EXPECT_EQ(store.stat("hsipos_total"), "3");
    EXPECT_EQ(store.stat("hsipos_bad 0"), "1");
    EXPECT_EQ(store.stat("hsipos_bad"), "1");
    EXPECT_EQ(get<TextPanel>("Label1").text(), "Versuche: 3     Richtige: 2     Performance: 66%");
}

TEST_F(QuizTest, SumsOnlyTheQuestionsOfTheFile) {
    store.setValue("qxr1", "stats", "hsipos_total 2", "40");
    store.setValue("qxr1", "stats", "hsipos_total", "99");
    start(1, positions(2));
    answerRight();
    next();
    EXPECT_EQ(store.stat("hsipos_total"), "1");
}

TEST_F(QuizTest, StatisticsStandNonsenseAndForget) {
    for (const char* key : {"hsipos_total", "hsipos_bad", "hsipos_total 0"})
        store.setValue("qxr1", "stats", key, "many");
    start(1, positions(2));
    EXPECT_EQ(get<TextPanel>("Label1").text(), "Versuche: 0");
    store.setValue("qxr1", "stats", "hsipos_total 0", "1e300");
    store.setValue("qxr1", "stats", "hsipos_bad 1", "-7");
    answerWrong();
    next();
    EXPECT_EQ(store.stat("hsipos_total"), "2147483647");
    EXPECT_EQ(store.stat("hsipos_bad"), "1");
    store.setValue("qxr1", "stats", "hsipos_total", "2");
    store.setValue("qxr1", "stats", "hsipos_bad", "5");
    EXPECT_EQ(statisticLine(form.statistics.of("hsipos"), germanTable()),
              "Versuche: 2     Richtige:-3     Performance:-150%");

    form.statistics.prepare();
    form.statistics.reset();
    EXPECT_EQ(store.stat("hsipos_total"), "-");
    EXPECT_EQ(store.stat("dummy"), "0");
    form.statistics.reset();
    EXPECT_EQ(store.stat("dummy"), "0");
    CountingStore untouched;
    Statistics(untouched).reset();
    EXPECT_EQ(untouched.stat("dummy"), "0") << "without deleting a section that is absent";
    EXPECT_THROW(CountingStore().deleteSection("qxr1", "stats"), RunTimeError);
}

TEST_F(QuizTest, EachExerciseHasItsPanelFileTitleAndStem) {
    const struct {
        int type;
        const char* file;
        const char* frame;
        const char* next;
        const char* stem;
        const char* title;
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
        EXPECT_TRUE(title().starts_with(std::string(name) + " ("));
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
        click(nextButton);
        EXPECT_EQ(store.stat(std::string(stem) + "_total"), type == 10 ? "2" : "1");
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
    EXPECT_EQ(label("StudyNotice1").text(), "Die Übungsdatei kann nicht gelesen werden: hsi.sty");
    EXPECT_TRUE(label("StudyNotice1").visible());
    EXPECT_FALSE(label("Text1").visible());
    EXPECT_FALSE(list("Combo1").visible());
    EXPECT_FALSE(get<CommandButton>("Command2").enabled());
    EXPECT_EQ(form.c_QASessionFileName.get(), "");
    list("Combo1").pick(3);
    next();
    EXPECT_TRUE(label("StudyNotice1").visible());
    EXPECT_EQ(store.flushes, 0);
    click("Command3");
    EXPECT_EQ(form.c_QAtype, 0);

    start(1, positions(1));
    EXPECT_FALSE(label("StudyNotice1").visible());
    EXPECT_TRUE(list("Combo1").visible());
    files[studyPath("hsi.sty")] += ":qa:,cut";
    set(1);
    EXPECT_EQ(shown(), 0) << "what is complete can be asked";
    EXPECT_TRUE(label("StudyNotice1").text().ends_with("hsi.sty (Frage 2, Zeile 9)"));
    files[studyPath("hsi.sty")] = "";
    set(1);
    EXPECT_TRUE(label("StudyNotice1").text().starts_with("In der Übungsdatei stehen keine"));
    start(1, positions(302));
    EXPECT_EQ(title(), "HSI ÜBUNGEN POSITION ( 1 von 301)");
    EXPECT_TRUE(label("StudyNotice1").visible());
}

// The solution takes the place of the verdict's word, not of what the student said.
TEST_F(QuizTest, AWrongAnswerStaysBesideTheSolution) {
    start(1, positions(1));
    const AnswerRow& row = *form.activePanel()->rows[0];
    const AnswerRow& other = *form.activePanel()->rows[1];
    EXPECT_EQ(row.state(), RowState::open);
    answerWrong();
    EXPECT_EQ(row.state(), RowState::judged);
    EXPECT_EQ(row.given(), "095");
    EXPECT_TRUE(wrong("Text11"));
    pick("Combo2", "090");
    click("Command2");
    EXPECT_EQ(row.state(), RowState::revealed);
    EXPECT_EQ(row.verdict(), Verdict::wrong);
    EXPECT_EQ(row.given(), "095");
    EXPECT_EQ(answer("Text11", solutionColours), "90");
    EXPECT_EQ(other.verdict(), Verdict::right);
    EXPECT_EQ(form.activePanel()->rows[2]->verdict(), Verdict::notYet);
    next();
    EXPECT_EQ(row.given() + other.given(), "");
    EXPECT_EQ(row.verdict(), Verdict::notYet);
}

TEST_F(QuizTest, AQuestionWithoutItsSessionCanOnlyBePassedOrLeft) {
    const StudyRecord record = recordOf({{qa, "1"}, {ans1, "10"}, {sessionName, "q.ts"}});
    start(6, std::vector<StudyRecord>(8, record));
    EXPECT_TRUE(form.posed());
    form.sessionMissing("no flight");
    EXPECT_FALSE(form.posed());
    EXPECT_EQ(label("StudyNotice20").text(), "no flight");
    EXPECT_EQ(title(), "QDM ÜBUNGEN ( 1 von 8)");
    for (const char* button : {"Command10", "Command15"})
        EXPECT_FALSE(get<CommandButton>(button).visible()) << button;
    form.activePanel()->rows[0]->options[0]->choose();
    EXPECT_EQ(form.activePanel()->rows[0]->state(), RowState::notAsked);
    click("Command9");
    EXPECT_EQ(store.flushes, 0);
    EXPECT_EQ(title(), "QDM ÜBUNGEN ( 2 von 8)");
    EXPECT_TRUE(form.posed());
    EXPECT_FALSE(label("StudyNotice20").visible());
    EXPECT_TRUE(get<CommandButton>("Command10").visible());
}

TEST_F(QuizTest, LeavingStopsJudgingAndRequests) {
    start(1, positions(2));
    click("Command3");
    EXPECT_EQ(form.c_QAtype, 0);
    EXPECT_EQ(form.c_QASessionFileName.get(), "");
    EXPECT_EQ(form.activePanel(), nullptr);
    answerRight();
    next();
    EXPECT_EQ(store.flushes, 0);
    EXPECT_EQ(takeResult(), 0);
    for (const int type : {-1, 0, 11}) {
        set(type);
        EXPECT_EQ(form.c_QAtype, type);
        EXPECT_EQ(form.c_QASessionFileName.get(), "");
    }
    set(1);
    EXPECT_EQ(shown(), 0) << "a start begins at the front";
}

TEST_F(QuizTest, FoldsAllPanelsButThePositions) {
    start(1, positions(1));
    form.c_smallFrame = true;
    EXPECT_EQ(get<FormFrame>("Frame1").height(), 4250);
    for (const char* frame : {"Frame2", "Frame11", "Frame20", "Frame29"})
        EXPECT_EQ(get<FormFrame>(frame).height(), 1100) << frame;
    next();
    EXPECT_FALSE(form.c_smallFrame);
    EXPECT_EQ(get<FormFrame>("Frame29").height(), 4250);
    form.c_smallFrame = true;
    set(1);
    EXPECT_FALSE(form.c_smallFrame);
}

class FlightOfAQuestionTest : public QuizTest {
  protected:
    void SetUp() override {
        QuizTest::SetUp();
        const StudyRecord record = recordOf({{qa, "1"}, {ans1, "10"}, {sessionName, "q.ts"}});
        start(6, std::vector<StudyRecord>(8, record));
        form.c_QASessionFileName = "";
        click("Command15");
    }
    const std::string session = "app\\default\\sessions\\q.ts";
};

TEST_F(FlightOfAQuestionTest, IsAskedForAndEndedByTheNegatedCode) {
    EXPECT_EQ(form.c_QAFly, 3);
    EXPECT_EQ(form.c_TrackDelta, 3);
    EXPECT_EQ(takeResult(), 4);
    EXPECT_EQ(get<FormFrame>("Frame20").height(), 1100);
    EXPECT_EQ(form.c_QASessionFileName.get(), "");
    form.c_QAFly = -3;
    EXPECT_EQ(get<FormFrame>("Frame20").height(), 4250);
    EXPECT_EQ(form.c_QASessionFileName.get(), session);
}

TEST_F(FlightOfAQuestionTest, IsEndedByGoingOnAndByLeaving) {
    click("Command9");
    EXPECT_EQ(form.c_QAFly, -3);
    EXPECT_EQ(form.c_TrackDelta, 0);
    EXPECT_EQ(takeResult(), 2);
    EXPECT_EQ(title(), "QDM ÜBUNGEN ( 2 von 8)");
    click("Command15");
    click("Command10");
    EXPECT_EQ(form.c_QAFly, -3);
    EXPECT_EQ(takeResult(), 6);
    EXPECT_EQ(form.c_QASessionFileName.get(), session);
    EXPECT_EQ(get<FormFrame>("Frame20").height(), 1100);
    click("Command15");
    click("Command8");
    EXPECT_EQ(form.c_QAFly, -3);
    EXPECT_EQ(form.c_QAtype, 0);
    EXPECT_EQ(form.c_QASessionFileName.get(), "");
    EXPECT_EQ(form.c_showResult, 0);
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
