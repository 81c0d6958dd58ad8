#include "chart/trace_dots.h"

#include "core/rounding.h"

#include <algorithm>

namespace tarnel {

namespace {

constexpr int shownSamples = 1000;
constexpr int edgeMargin = 200;

int thinningStep(std::int16_t mapScaleTwips) {
    return std::max(1,
                    static_cast<int>(roundToEven(1000.0 / mapScaleTwips + 1000.0 / mapScaleTwips)));
}

void drawDots(ChartPicture& picture, MapView& view, const Recording& recording, int first,
              double trueHeading) {
    const int step = thinningStep(view.plot.mapScaleTwips);
    const double rotation = view.rotation(trueHeading);
    ChartPlace place;
    for (int i = first; i <= recording.sampleIndex(); i += step) {
        const Sample& sample = recording.at(i);
        view.placeOnChart({sample.traceLat, sample.traceLon}, rotation, place);
        if (view.northUpMode || (place.point.x > edgeMargin && place.point.y > edgeMargin))
            picture.trace.plot(place.point.x, place.point.y, chartColour::track);
    }
}

} // namespace

void DeleteTrace(ChartPicture& picture) {
    picture.trace.clear();
}

void DrawTrace2(ChartPicture& picture, MapView& view, const Recording& recording,
                double trueHeading) {
    drawDots(picture, view, recording, std::max(1, recording.sampleIndex() - shownSamples),
             trueHeading);
}

void DrawReplayTrace(ChartPicture& picture, MapView& view, const Recording& recording,
                     double trueHeading) {
    DeleteTrace(picture);
    drawDots(picture, view, recording, 1, trueHeading);
}

} // namespace tarnel
