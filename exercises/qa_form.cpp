#include "exercises/qa_form.h"

#include "exercises/question_key.h"
#include "exercises/study_remark.h"
#include "exercises/weak_spot.h"

#include <algorithm>

namespace tarnel {

namespace {

/// The negated `c_QAFly` that unfolds the panel for ADF positions. Nothing sets it; the others go
/// by their panel's code.
constexpr std::int16_t adfFlightEnded = -5;

void unfold(ExercisePanel& panel) {
    panel.frame.setVisible(true);
    panel.fold(false);
}

} // namespace

QAform::QAform(FormState& form, ExerciseSurroundings surroundings)
    : statistics(surroundings.settings),
      texts(surroundings.texts),
      readFile(std::move(surroundings.readFile)),
      draw(std::move(surroundings.seed)) {
    for (std::size_t i = 0; i < panelCount; ++i) {
        panels[i] = std::make_unique<ExercisePanel>(form, panelWidgets()[i]);
        connect(*panels[i]);
    }
    for (const auto& row : panel(PanelId::frame1).rows)
        row->prompt.setColours({0, 0x808080});
}

void QAform::connect(ExercisePanel& panel) {
    panel.nextButton.onClick = [this] { next(); };
    panel.solutionButton.onClick = [this, &panel] { showSolution(panel); };
    panel.flyButton.onClick = [this, &panel] { flyQuestion(panel); };
    panel.cancelButton.onClick = [this] { cancel(); };
    for (std::size_t row = 0; row < panel.rows.size(); ++row)
        panel.rows[row]->onPick = [this, &panel, row](int option) {
            judge(panel, static_cast<int>(row), option);
        };
}

const ExerciseKind* QAform::running() const {
    return exercise ? exerciseOf(c_QAtype) : nullptr;
}

ExercisePanel* QAform::activePanel() {
    const ExerciseKind* kind = running();
    return kind ? &panel(kind->panel) : nullptr;
}

FormControl* QAform::find(std::string_view name) {
    for (const auto& panel : panels)
        for (FormControl* control : panel->controls())
            if (control->name() == name)
                return control;
    return nullptr;
}

void QAform::New_c_QAtype() {
    if (const ExerciseKind* kind = exerciseOf(c_QAtype))
        start(*kind, shippedCourse(c_MainAppPath));
    else if (c_QAtype != static_cast<std::int16_t>(ExerciseType::closed))
        DisplayQuestion();
}

void QAform::open(const Course& from, ExerciseType type, Order order) {
    c_QAtype.publish(static_cast<std::int16_t>(type));
    if (const ExerciseKind* kind = exerciseOf(c_QAtype))
        start(*kind, from, order);
}

void QAform::start(const ExerciseKind& kind, const Course& from, Order order) {
    endFlight();
    course = from;
    exercise = kind.make(texts, draw);
    for (const auto& other : panels)
        other->frame.setVisible(false);
    ExercisePanel& shown = panel(kind.panel);
    unfold(shown);
    c_smallFrame = false;
    if (kind.startsAtRandom)
        shown.randomBox.set(1);
    shown.mistakesBox.set(order == Order::mistakes ? 1 : 0);
    round.reset();
    loadStudyFileOf(kind);
    draw.shuffle(lastQuestion);
    questionIndex = -1;
    shuffleCursor = 0;
    DisplayQuestion();
}

void QAform::loadStudyFileOf(const ExerciseKind& kind) {
    for (const std::string& name : course.studyFiles(kind, texts.isGerman())) {
        LoadStudyFile(name);
        if (study.end != StudyEnd::unreadable)
            return;
    }
}

void QAform::LoadStudyFile(const std::string& name) {
    const auto bytes = readFile(course.studyFolder + name);
    study = bytes ? readStudyFile(*bytes, c_QAtype) : StudyFile{{}, StudyEnd::unreadable, 0, 0};
    keys = questionKeys(study.records);
    lastQuestion = static_cast<std::int16_t>(study.records.size()) - 1;
    questionIndex = lastQuestion;
    remark = studyRemark(study, name, texts);
}

void QAform::DisplayQuestion() {
    answerRight.fill(0);
    answerGiven.fill(0);
    const ExerciseKind* kind = running();
    if (!kind)
        return;
    questionLive = false;
    ExercisePanel& shown = panel(kind->panel);
    shown.clear();
    shown.setTitle(std::string(texts[kind->title]));
    shown.setNotice(remark);
    c_QASessionFileName.publish({});
    if (!study.records.empty() && followRound(shown))
        poseQuestion(*kind, shown);
}

/// The box begins a round. False if nothing is left to be asked in it; then the usual order goes
/// on.
bool QAform::followRound(ExercisePanel& shown) {
    if (shown.mistakesBox.value() != 1) {
        round.reset();
        return true;
    }
    const bool begins = !round;
    if (begins)
        round = mistakes ? mistakes(course, static_cast<ExerciseType>(c_QAtype.get()), keys)
                         : MistakeRound();
    if (!round->over())
        return true;
    round.reset();
    shown.mistakesBox.set(0);
    shown.setNotice(std::string(texts[begins ? Text::noMistakes : Text::mistakesAllRight]));
    onRoundOver();
    return false;
}

void QAform::poseQuestion(const ExerciseKind& kind, ExercisePanel& shown) {
    stepQuestion(shown.randomBox.value() == 1);
    shown.setPlace({questionIndex + 1, lastQuestion + 1}, texts[Text::of]);
    shown.statistic.setText(statisticLine(statistics.of(course.statisticStem(kind)), texts));
    exercise->take(currentRecord());
    shown.ask(*exercise);
    requestSession();
    questionLive = true;
    onPosed();
}

void QAform::stepQuestion(bool atRandom) {
    if (round) {
        questionIndex = static_cast<std::int16_t>(round->place());
        return;
    }
    std::int16_t& counter = atRandom ? shuffleCursor : questionIndex;
    ++counter;
    if (counter > lastQuestion)
        counter = 0;
    if (atRandom)
        questionIndex = static_cast<std::int16_t>(draw.question(shuffleCursor));
}

void QAform::requestSession() {
    c_QASessionFileName.publish(course.sessionFolder + currentRecord()[StudyColumn::sessionName]);
}

void QAform::judge(ExercisePanel& panel, int row, int option) {
    if (&panel != activePanel() || !questionLive || row >= exercise->rowCount() ||
        exercise->isShut(row, answerGiven))
        return;
    AnswerRow& asked = *panel.rows[static_cast<std::size_t>(row)];
    const Pick pick{row, option, asked.typed()};
    const bool right = exercise->isRight(pick);
    if (right)
        answerRight[static_cast<std::size_t>(row)] = -1;
    exercise->useUp(row, answerGiven);
    asked.judge(right, exercise->given(pick),
                right ? exercise->rightAnswer(row) : std::string(texts[Text::answerWrong]));
    shutRows(panel);
    if (exercise->canFinish(row) && allRight())
        ask(running()->whenSolved);
    tellJudged(pick, right);
}

void QAform::tellJudged(const Pick& pick, bool right) {
    const auto type = static_cast<ExerciseType>(c_QAtype.get());
    onJudged({.course = course,
              .exercise = type,
              .question = keys[static_cast<std::size_t>(questionIndex)],
              .row = pick.row,
              .rows = exercise->rowCount(),
              .spot = weakSpot(type, pick.row, exercise->taken()),
              .given = exercise->given(pick),
              .answer = exercise->rightAnswer(pick.row),
              .right = right});
}

/// An answer to one row can use up another.
void QAform::shutRows(ExercisePanel& panel) {
    for (int row = 0; row < exercise->rowCount(); ++row) {
        AnswerRow& other = *panel.rows[static_cast<std::size_t>(row)];
        if (other.state() == RowState::open && exercise->isShut(row, answerGiven))
            other.shut();
    }
}

bool QAform::allRight() const {
    return std::all_of(answerRight.begin(), answerRight.begin() + exercise->rowCount(),
                       [](std::int16_t flag) { return flag != 0; });
}

void QAform::showSolution(ExercisePanel& panel) {
    if (&panel != activePanel())
        return;
    endFlight();
    ask(running()->onSolution);
    if (panel.folds())
        panel.fold(true);
    panel.reveal(*exercise);
}

void QAform::giveUp() {
    if (ExercisePanel* panel = activePanel(); panel && posed())
        panel->reveal(*exercise);
}

void QAform::flyQuestion(ExercisePanel& panel) {
    constexpr std::int16_t trackDelta = 3;
    if (&panel != activePanel())
        return;
    c_QAFly.publish(panel.flyCode);
    c_TrackDelta.publish(trackDelta);
    ask(ShowResult::studentFlies);
    panel.frame.setVisible(true);
    panel.fold(true);
}

/// Ends the student's flight as the way back to the exercise does.
void QAform::endFlight() {
    if (c_QAFly <= 0)
        return;
    c_TrackDelta.publish(0);
    c_QAFly = static_cast<std::int16_t>(-c_QAFly);
}

void QAform::New_c_QAFly() {
    if (c_QAFly >= 0)
        return;
    for (const auto& flown : panels)
        if (c_QAFly == -flown->flyCode)
            unfold(*flown);
    if (c_QAFly == adfFlightEnded)
        unfold(panel(PanelId::frame11));
    if (running() && questionLive)
        requestSession();
}

void QAform::fold(bool small) {
    for (const PanelId id : {PanelId::frame29, PanelId::frame11, PanelId::frame2, PanelId::frame20})
        panel(id).fold(small);
}

void QAform::next() {
    const ExerciseKind* kind = running();
    if (!kind)
        return;
    endFlight();
    if (round && questionLive)
        round->pass(allRight());
    countAnswer(*kind);
    ask(ShowResult::nextQuestion);
    c_smallFrame = false;
    DisplayQuestion();
}

/// Counts the question if anything was answered. One that was not all right comes again, unless the
/// order is random.
void QAform::countAnswer(const ExerciseKind& kind) {
    if (std::ranges::all_of(answerGiven, [](std::int16_t flag) { return flag == 0; }))
        return;
    const bool right = allRight();
    statistics.count(course.statisticStem(kind), questionIndex, lastQuestion, right);
    if (!right)
        --questionIndex;
}

void QAform::sessionMissing(const std::string& told) {
    ExercisePanel* shown = activePanel();
    if (!shown)
        return;
    endFlight();
    questionLive = false;
    shown->clear();
    shown->setNotice(told);
}

void QAform::cancel() {
    endFlight();
    questionLive = false;
    c_QASessionFileName.publish({});
    ask(ShowResult::nothing);
    c_QAtype.publish(static_cast<std::int16_t>(ExerciseType::left));
}

void QAform::LoadPowerTip() {
    if (showPowerTips)
        showPowerTips(withSeparator(c_MainAppPath) + "pwr.rtf");
}

} // namespace tarnel
