#include "shell/debrief_desk.h"

#include "chart/chart_framing.h"

#include <algorithm>
#include <utility>

namespace tarnel {

namespace {

constexpr std::size_t fewestSamples = 2; ///< of a flight that can be judged
constexpr std::size_t framedEvery = 8;   ///< samples
constexpr double framedFixRoom = 350;    ///< twips

} // namespace

DebriefDesk::DebriefDesk(DebriefControls& debriefControls, Given what)
    : controls(debriefControls), given(std::move(what)) {
    controls.limits.select(static_cast<int>(limits));
    controls.item.onClick = given.button.onClick = [this] { open(); };
    controls.close.onClick = [this] { close(); };
    controls.flyAgain.onClick = [this] {
        showAsBefore();
        end();
        given.flyAgain();
    };
    controls.compare.onClick = [this] { touch(); };
    controls.limits.onClick = [this] {
        limits = static_cast<Strictness>(controls.limits.index());
        judgeAll();
    };
    controls.task.onClick = [this] {
        choosing = true;
        updateControls();
    };
    controls.judge.onClick = [this] {
        if (const std::optional<Task> wanted = taskOf(asked, given.reference()))
            hold(*wanted);
    };
    controls.previous.onClick = [this] { stepFinding(false); };
    controls.next.onClick = [this] { stepFinding(true); };
    given.button.setVisible(false);
    updateControls();
}

bool DebriefDesk::mayOpen() const {
    return !shown && given.sim.stopped() && (given.mayShow() || given.ownFlight()) &&
           static_cast<std::size_t>(given.sim.c_TraceBufferMax) >= fewestSamples;
}

void DebriefDesk::open() {
    if (!mayOpen() || !(given.mayShow() || given.giveUp()))
        return;
    if (!lastTask)
        attempts.clear();
    begin(given.knownTask());
}

void DebriefDesk::open(std::vector<Attempt> flights, const std::optional<Task>& task) {
    if (shown)
        end();
    if (!mayOpen())
        return;
    attempts = std::move(flights);
    flown = attempts.back().number;
    lastTask = task;
    begin(task);
}

void DebriefDesk::begin(const std::optional<Task>& known) {
    given.replay.stop();
    const UserControl2& sim = given.sim;
    before = {sim.view.mapCenter, sim.c_MAPscale, given.lock.value(), given.display.hidden(),
              sim.presentSampleIndex()};
    if (before.hidden)
        given.display.setHidden(false);
    flight = sim.recording.changes();
    shown = true;
    asked = known ? choiceOf(*known) : given.proposal();
    choosing = true;
    held.reset();
    if (known)
        hold(*known);
    updateControls();
    changed();
}

void DebriefDesk::showAsBefore() const {
    given.sim.showChart(before.centre, before.scale);
    if (before.hidden)
        given.display.setHidden(true);
}

void DebriefDesk::end() {
    shown = false;
    chosen.reset();
    updateControls();
    changed();
}

void DebriefDesk::close() {
    if (!shown)
        return;
    given.replay.stop();
    showAsBefore();
    if (given.sim.presentSampleIndex() != before.sample)
        given.replay.goTo(before.sample);
    end();
    given.lock.set(before.lock);
}

void DebriefDesk::choose(const TaskChoice& next) {
    asked = next;
    updateControls();
}

/// Another task begins a new row of attempts.
void DebriefDesk::hold(const Task& next) {
    if (lastTask && *lastTask != next) {
        attempts.clear();
        flown = 0;
    }
    held = lastTask = next;
    choosing = false;
    const bool isNew = takeFlight();
    controls.compare.show(attempts.size() > 1 ? 1 : 0);
    chosen.reset();
    judgeAll();
    frame();
    lookAtWorst();
    if (isNew && onJudged && (given.ownFlight() || !given.knownTask()))
        onJudged(attempts.back());
}

/// A flight that was looked at before is the same attempt again; false then.
bool DebriefDesk::takeFlight() {
    std::vector<Sample> samples = given.sim.recording.samplesTo(given.sim.c_TraceBufferMax);
    const auto again = std::ranges::find(attempts, samples, &Attempt::samples);
    if (again != attempts.end()) {
        std::rotate(again, again + 1, attempts.end());
        return false;
    }
    if (attempts.size() == mostAttempts)
        attempts.erase(attempts.begin());
    attempts.push_back({++flown, std::move(samples), {}});
    return true;
}

/// The finding that is looked at stays the same one, wherever it stands now.
void DebriefDesk::judgeAll() {
    if (!held)
        return;
    std::optional<Finding> looked;
    if (chosen)
        looked = attempts.back().debrief.findings[*chosen];
    chosen.reset();
    for (Attempt& each : attempts)
        each.debrief = judge(each.samples, *held, limits);
    const std::vector<Finding>& findings = attempts.back().debrief.findings;
    for (std::size_t i = 0; looked && i < findings.size(); ++i)
        if (findings[i].kind == looked->kind && findings[i].turn == looked->turn)
            chosen = i;
    updateControls();
}

void DebriefDesk::lookAtWorst() {
    const std::vector<Finding>& findings = attempts.back().debrief.findings;
    if (!findings.empty() && findings.front().verdict == Verdict::wrong)
        chooseFinding(0);
}

/// The chart shows the flight and the station that it is about.
void DebriefDesk::frame() const {
    const std::vector<Sample>& samples = attempts.back().samples;
    std::vector<FramedPlace> places;
    for (std::size_t i = 0; i < samples.size(); i += framedEvery)
        places.push_back({{samples[i].traceLat, samples[i].traceLon}, framedAircraftRoom});
    if (!std::holds_alternative<ReferenceTask>(*held)) {
        const Slot station = choiceOf(*held).station;
        places.push_back({inSlot(samples.front().traceStations, station), framedFixRoom});
    }
    const ChartFraming framing = framingOf(places, {given.sim.picture.size});
    given.sim.showChart(framing.centre, framing.scale);
}

std::span<const Attempt> DebriefDesk::compared() const {
    if (!held || controls.compare.value() == 0)
        return {};
    return {attempts.begin(), attempts.end() - 1};
}

void DebriefDesk::chooseFinding(std::size_t index) {
    if (!attempt() || index >= attempt()->debrief.findings.size())
        return;
    chosen = index;
    touch();
    goTo(attempt()->debrief.findings[index].samples.first);
}

void DebriefDesk::stepFinding(bool forwards) {
    if (!attempt())
        return;
    const std::vector<Finding>& findings = attempt()->debrief.findings;
    std::optional<std::size_t> nearest;
    const auto ahead = [&](std::size_t index) {
        const int way = findings[index].samples.first - moment();
        return forwards ? way : -way;
    };
    for (std::size_t i = 0; i < findings.size(); ++i)
        if (ahead(i) > 0 && (!nearest || ahead(i) < ahead(*nearest)))
            nearest = i;
    if (nearest)
        chooseFinding(*nearest);
}

int DebriefDesk::moment() const {
    return given.sim.presentSampleIndex() - 1;
}

/// Looking changes nothing in the flight: the instruments are locked.
void DebriefDesk::goTo(int sample) {
    if (!shown)
        return;
    given.lock.set(1);
    given.replay.goTo(std::clamp<int>(sample + 1, 1, given.sim.c_TraceBufferMax));
}

void DebriefDesk::follow() {
    controls.item.setEnabled(mayOpen());
    given.button.setVisible(given.ownFlight());
    given.button.setEnabled(mayOpen());
    if (shown &&
        (!given.sim.stopped() || !given.mayShow() || given.sim.recording.changes() != flight))
        end();
}

void DebriefDesk::updateControls() {
    const bool judged = held && !choosing;
    controls.compare.setEnabled(judged && attempts.size() > 1);
    for (FormControl* control : std::initializer_list<FormControl*>{
             &controls.flyAgain, &controls.limits, &controls.previous, &controls.next,
             &controls.exportPage, &controls.exportPicture, &controls.exportValues})
        control->setEnabled(judged);
    controls.judge.setEnabled(shown && taskOf(asked, given.reference()).has_value());
    touch();
}

} // namespace tarnel
