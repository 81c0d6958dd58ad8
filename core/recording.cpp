#include "core/recording.h"

#include "core/run_time_error.h"

#include <algorithm>
#include <utility>

namespace tarnel {

namespace {

RunTimeError outOfRange() {
    return {RunTimeError::subscriptOutOfRange, "Recording", "Subscript out of range"};
}

} // namespace

Recording::Recording() : samples(static_cast<std::size_t>(lastSample) + 1) {}

const Sample& Recording::at(int index) const {
    if (index < 0 || index > lastSample)
        throw outOfRange();
    return samples[static_cast<std::size_t>(index)];
}

Sample& Recording::at(int index) {
    return const_cast<Sample&>(std::as_const(*this).at(index));
}

bool Recording::tickIsSample() {
    constexpr std::int16_t ticksPerSecond = 3;
    if (++sampleTick > ticksPerSecond)
        sampleTick = 0;
    return sampleTick == ticksPerSecond;
}

BufferWarning Recording::advance() {
    ++newest;
    if (newest == almostFullAt)
        return BufferWarning::almostFull;
    if (newest < fullAt)
        return BufferWarning::none;
    newest = 1;
    return BufferWarning::full;
}

void Recording::clear() {
    std::fill(samples.begin(), samples.end(), Sample{});
    newest = 0;
}

void Recording::write(const Sample& sample, std::int16_t comment) {
    Sample& target = at(newest);
    const std::int16_t kept = target.traceComment;
    target = sample;
    target.traceComment = comment == noComment ? kept : comment;
}

void Recording::cutAfter(std::int16_t index) {
    setNewest(index);
    for (int i = index + 1; i <= lastSample; ++i) {
        Sample& sample = at(i);
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
        at(i).traceComment = comment;
}

} // namespace tarnel
