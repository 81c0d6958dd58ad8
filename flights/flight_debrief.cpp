#include "flights/flight_debrief.h"

#include "core/number_text.h"
#include "flights/flight.h"
#include "flights/plan_error.h"
#include "shell/finding_text.h"

#include <vector>

namespace tarnel {

namespace {

std::string clock(int sample) {
    const auto seconds = static_cast<std::int64_t>(sample * secondsPerSample);
    return zeroPadded(seconds / 60, 2) + ":" + zeroPadded(seconds % 60, 2);
}

} // namespace

std::string flightDebrief(ScriptedFlight& flight, const StringTable& texts) {
    const FlightPlan& plan = flight.plan();
    if (!plan.task)
        return "";
    const Recording& recording = flight.form().UserControl11.recording;
    std::vector<Sample> samples;
    for (int i = 1; i <= recording.sampleIndex(); ++i)
        samples.push_back(recording.at(i));
    std::string lines;
    for (const Finding& finding :
         judge(samples, wholeTask(*plan.task, plan.file), plan.task->limits).findings) {
        const std::string verdict = verdictText(finding, texts);
        lines += clock(finding.samples.first) + " " + (verdict.empty() ? "" : verdict + ": ") +
                 findingText(finding, texts) + "\n";
    }
    return lines;
}

} // namespace tarnel
