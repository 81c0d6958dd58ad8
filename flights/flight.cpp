#include "flights/flight.h"

#include "core/rounding.h"
#include "flights/plan_error.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tarnel {

namespace {

constexpr std::int16_t loadNamedChart = 2;
constexpr int couplingsPerTick = 3;

/// What a box about a chart says on its lines but the first, which names the procedure, and the
/// last, which says what is flown on. All on one line.
std::string detailsOf(std::string text) {
    text.erase(0, text.find('\n') + 1);
    text.erase(text.rfind('\n'));
    std::string details;
    for (const char c : text)
        details += c == '\n' ? std::string(", ") : std::string(1, c);
    return details;
}

/// Sets the course of an instrument as its knob does: both outputs, counted the other way round.
void turnCourse(UserControl_1& instrument, std::int16_t course) {
    const double turned = 360 - course;
    instrument.c_MouseOBS = turned;
    instrument.c_MouseOBS_HSI = turned;
}

} // namespace

ScriptedFlight::ScriptedFlight(FlightPlan flown, const StringTable& texts,
                               const std::string& applicationFolder)
    : flightPlan(std::move(flown)), trainer(texts, world, applicationFolder) {
    if (flightPlan.chart) {
        world.boxes.clear(); // of the default chart, which nobody asked for
        trainer.UserControl11.c_ChartFileName = *flightPlan.chart;
        trainer.UserControl11.c_loadChart = loadNamedChart;
    }
    checkChart();
    prepare();
}

/// The program flies on over what it has; a flight that is to come out the same must not.
void ScriptedFlight::checkChart() const {
    if (world.boxes.empty())
        return;
    throw PlanError(flightPlan.file, flightPlan.chartLine,
                    "a chart that can be read: " + detailsOf(world.boxes.front().text));
}

void ScriptedFlight::prepare() {
    UserControl2& simulation = trainer.UserControl11;
    if (flightPlan.position)
        simulation.placeAircraft(*flightPlan.position);
    if (flightPlan.start.heading)
        simulation.turnAircraft(*flightPlan.start.heading);
    else
        flightPlan.start.heading = toInt16(simulation.c_HDG);
    trainer.display.setNorthUp(flightPlan.northUp);
    if (flightPlan.inst2.type)
        trainer.SelectInst2(*flightPlan.inst2.type);
    if (flightPlan.inst3.type)
        trainer.SelectInst3(*flightPlan.inst3.type);
    prepareInstrument(flightPlan.inst2, trainer.inst2.instrument);
    prepareInstrument(flightPlan.inst3, trainer.inst3.instrument);
    apply(flightPlan.start);
}

void ScriptedFlight::prepareInstrument(const InstrumentPlan& instrument, UserControl_1& control) {
    if (instrument.receiver)
        control.c_NAVselect = *instrument.receiver;
    if (instrument.adfCard)
        control.c_ADFCardselect = *instrument.adfCard;
}

void ScriptedFlight::apply(const FlightSettings& settings) {
    const auto tune = [](RadioFace& face, const std::optional<std::int16_t>& slot) {
        if (slot)
            face.c_SetFreq = std::int32_t{*slot};
    };
    tune(trainer.NAVControlFace1, settings.nav1);
    tune(trainer.NAVControlFace2, settings.nav2);
    tune(trainer.ADFControlFace1, settings.adf);
    tune(trainer.DMEControlFace1, settings.dme);
    if (settings.heading)
        trainer.coupling.setHeadingBug(*settings.heading);
    if (settings.tas)
        trainer.APControlFace1.c_TAS = static_cast<double>(*settings.tas);
    if (settings.obs2)
        turnCourse(trainer.inst2.instrument, *settings.obs2);
    if (settings.obs3)
        turnCourse(trainer.inst3.instrument, *settings.obs3);
    if (settings.wind)
        trainer.UserControl11.setWind(*settings.wind);
    if (settings.comment)
        writeComment(*settings.comment);
    if (settings.commentEnds)
        endComment();
    if (settings.stopwatch)
        press(*settings.stopwatch);
}

void ScriptedFlight::press(StopwatchPress button) {
    if (button == StopwatchPress::reset)
        trainer.stopwatchResetButton.click();
    else
        trainer.stopwatchStartButton.click();
}

void ScriptedFlight::writeComment(const std::string& text) {
    endComment();
    trainer.UserControl11.startComment(text);
}

void ScriptedFlight::endComment() {
    if (trainer.UserControl11.comments.selectedCommentIndex != noComment)
        trainer.UserControl11.stopComment();
}

void ScriptedFlight::takeEvents() {
    const std::vector<FlightEvent>& events = flightPlan.events;
    while (nextEvent < events.size() && ticksUntil(events[nextEvent].at) <= tick()) {
        trainer.guarded([&] { apply(events[nextEvent].settings); });
        ++nextEvent;
    }
}

void ScriptedFlight::couple() {
    takeEvents();
    for (int i = 0; i < couplingsPerTick; ++i)
        trainer.Timer1();
}

void ScriptedFlight::fly(double until, const std::function<void()>& afterTick) {
    const int lastTick = ticksUntil(std::min(flightPlan.seconds, until));
    start();
    afterTick();
    while (tick() < lastTick) {
        step();
        afterTick();
    }
}

void ScriptedFlight::start() {
    trainer.startButton.click();
    couple();
}

void ScriptedFlight::step() {
    ++world.tick;
    trainer.simulationTimer();
    couple();
}

} // namespace tarnel
