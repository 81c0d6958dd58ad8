#include "core/recording.h"

#include "core/run_time_error.h"

#include <algorithm>

namespace tarnel {

namespace {

RunTimeError outOfRange() {
    return RunTimeError(Cause::subscriptOutOfRange, "Recording");
}

} // namespace

Recording::Recording() : samples(static_cast<std::size_t>(lastSample) + 1) {}

const Sample& Recording::at(int index) const {
    if (index < 0 || index > lastSample)
        throw outOfRange();
    return samples[static_cast<std::size_t>(index)];
}

Sample& Recording::edit(int index) {
    changeCount.note();
    return const_cast<Sample&>(at(index));
}

std::vector<Sample> Recording::samplesTo(int last) const {
    return {samples.begin() + 1, samples.begin() + 1 + std::clamp<int>(last, 0, lastSample)};
}

void Recording::giveUp() const {
    if (beforeLoss)
        beforeLoss();
}

void Recording::setNewest(std::int16_t index) {
    if (index < newest)
        giveUp();
    if (index != newest)
        changeCount.note();
    newest = index;
}

bool Recording::tickIsSample() {
    constexpr std::int16_t ticksPerSecond = 3;
    if (++sampleTick > ticksPerSecond)
        sampleTick = 0;
    return sampleTick == ticksPerSecond;
}

void Recording::goBackTo(const Recording& earlier) {
    giveUp();
    samples = earlier.samples;
    newest = earlier.newest;
    sampleTick = earlier.sampleTick;
    changeCount.goBackTo(earlier.changeCount);
}

BufferWarning Recording::advance() {
    if (newest + 1 >= fullAt) {
        setNewest(1);
        return BufferWarning::full;
    }
    setNewest(static_cast<std::int16_t>(newest + 1));
    return newest == almostFullAt ? BufferWarning::almostFull : BufferWarning::none;
}

void Recording::clear() {
    giveUp();
    std::fill(samples.begin(), samples.end(), Sample{});
    newest = 0;
    changeCount.note();
}

void Recording::write(const Sample& sample, std::int16_t comment) {
    Sample& target = edit(newest);
    const std::int16_t kept = target.traceComment;
    target = sample;
    target.traceComment = comment == noComment ? kept : comment;
}

void Recording::cutAfter(std::int16_t index) {
    setNewest(index);
    for (int i = index + 1; i <= lastSample; ++i) {
        Sample& sample = samples[static_cast<std::size_t>(i)];
        sample.traceLat = 45;
        sample.traceLon = 11;
        sample.traceHeading = 0;
        sample.traceStopMinutes = sample.traceStopSeconds = 0;
        sample.traceFlightMinutes = sample.traceFlightSeconds = sample.traceFlightHours = 0;
        sample.traceComment = noComment;
    }
}

void Recording::markComment(int first, int last, std::int16_t comment) {
    for (int i = first; i <= last; ++i)
        if (at(i).traceComment != comment)
            edit(i).traceComment = comment;
}

} // namespace tarnel
