#include "window/debrief/finding_rows.h"

#include "shell/finding_text.h"
#include "shell/task_text.h"
#include "window/widgets/text_of.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr int secondsPerMinute = 60;
constexpr int minutesPerHour = 60;

const Finding* sameIn(const Attempt& attempt, const Finding& finding) {
    const std::vector<Finding>& all = attempt.debrief.findings;
    const auto found = std::ranges::find_if(all, [&](const Finding& other) {
        return other.kind == finding.kind && other.turn == finding.turn;
    });
    return found == all.end() ? nullptr : &*found;
}

struct Score {
    int right = 0;
    int all = 0;
};

Score countOf(const Attempt& attempt) {
    Score score;
    for (const Finding& finding : attempt.debrief.findings) {
        score.right += finding.verdict == Verdict::right ? 1 : 0;
        score.all += finding.verdict == Verdict::open ? 0 : 1;
    }
    return score;
}

} // namespace

std::vector<FindingRow> findingRows(const DebriefDesk& desk, const StringTable& texts) {
    std::vector<FindingRow> rows;
    if (!desk.attempt())
        return rows;
    for (const Finding& finding : desk.attempt()->debrief.findings) {
        FindingRow row;
        row.verdict = finding.verdict;
        row.sentence = QString::fromStdString(findingText(finding, texts));
        row.word = QString::fromStdString(verdictText(finding, texts));
        row.moment = timeAt(*desk.attempt(), finding.samples.first);
        if (!desk.compared().empty())
            if (const Finding* earlier = sameIn(desk.compared().front(), finding)) {
                row.earlier = textOf(texts, Text::debriefEarlierValue)
                                  .arg(desk.compared().front().number)
                                  .arg(QString::fromStdString(
                                      valueText(earlier->value, unitOf(earlier->kind), texts)));
                row.earlierVerdict = earlier->verdict;
            }
        rows.push_back(std::move(row));
    }
    return rows;
}

QString taskTitle(const DebriefModel& model) {
    const StringTable& texts = model.boxes.texts;
    if (!model.desk.task() || model.desk.choosesTask())
        return textOf(texts, Text::debrief);
    return QString::fromStdString(taskName(*model.desk.task(), texts));
}

QString taskDetail(const DebriefModel& model) {
    if (!model.desk.task())
        return {};
    const Task& task = *model.desk.task();
    return QString::fromStdString(
        taskDetail(task, model.sim.slot(choiceOf(task).station).name, model.boxes.texts));
}

QString attemptName(const Attempt& attempt, const StringTable& texts) {
    return textOf(texts, Text::debriefAttempt).arg(attempt.number);
}

QString scoreOf(const Attempt& attempt, const StringTable& texts) {
    const Score score = countOf(attempt);
    return textOf(texts, Text::debriefScore).arg(score.right).arg(score.all);
}

QString earlierScoreOf(const Attempt& attempt, const StringTable& texts) {
    const Score score = countOf(attempt);
    return textOf(texts, Text::debriefEarlierScore)
        .arg(attemptName(attempt, texts))
        .arg(score.right)
        .arg(score.all);
}

double secondsAt(const Attempt& attempt, int sample) {
    const auto index = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(sample, 0)), 0,
                                               attempt.samples.size() - 1);
    const Sample& at = attempt.samples[index];
    return (at.traceFlightHours * minutesPerHour + at.traceFlightMinutes) * secondsPerMinute +
           at.traceFlightSeconds;
}

QString timeAt(const Attempt& attempt, int sample) {
    const auto seconds = static_cast<int>(secondsAt(attempt, sample));
    return QStringLiteral("%1:%2")
        .arg(seconds / secondsPerMinute, 2, 10, QLatin1Char('0'))
        .arg(seconds % secondsPerMinute, 2, 10, QLatin1Char('0'));
}

} // namespace tarnel
