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
    if (newest != fullAt)
        return BufferWarning::none;
    newest = 1;
    return BufferWarning::full;
}

void Recording::clear() {
    std::fill(samples.begin(), samples.end(), Sample{});
    newest = 0;
}

void Recording::beginComment(std::string text) {
    if (comments.size() == mostComments)
        throw outOfRange();
    comments.push_back(std::move(text));
    selected = static_cast<std::int16_t>(comments.size() - 1);
}

} // namespace tarnel
