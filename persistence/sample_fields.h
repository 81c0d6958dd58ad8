#pragma once

#include "core/recording.h"
#include "persistence/line_source.h"

#include <limits>

namespace tarnel {

/// What the fields of a sample may hold.
struct SampleRules {
    static constexpr DegreesRule latitude{FileField::latitude, 89};
    static constexpr DegreesRule longitude{FileField::longitude, 360};
    // A course that was recorded in the heading-up view is a sum of two and not brought into 360.
    static constexpr DegreesRule degrees{FileField::degrees, 32767};
    static constexpr WholeRule whole{FileField::wholeNumber,
                                     std::numeric_limits<std::int16_t>::min(),
                                     std::numeric_limits<std::int16_t>::max()};
    static constexpr WholeRule localizerCourse{FileField::localizerCourse, -360, 360};
    // Faster than any aircraft and any wind; the wind triangle holds both.
    static constexpr WholeRule airspeed{FileField::airspeed, 0, 1000};
    static constexpr WholeRule windSpeed{FileField::windSpeed,
                                         std::numeric_limits<std::int16_t>::min(), 500};
    static constexpr WholeRule comment{FileField::commentIndex, noComment, Comments::count - 1};
};

/// Calls `visit` with each field of `sample` behind its position, and with the rule of that field,
/// in the order of the file.
template <class AnySample, class Visitor>
void visitFieldsBehindPosition(AnySample& sample, Visitor visit) {
    using Rules = SampleRules;
    visit(sample.traceHeading, Rules::degrees);
    visit(sample.traceStopMinutes, Rules::whole);
    visit(sample.traceStopSeconds, Rules::whole);
    visit(sample.traceTAS, Rules::airspeed);
    visit(sample.traceTurnRate, Rules::whole);
    visit(sample.traceFlightMinutes, Rules::whole);
    visit(sample.traceFlightSeconds, Rules::whole);
    visit(sample.traceFlightHours, Rules::whole);
    for (auto& station : sample.traceStations) {
        visit(station.longitude, Rules::longitude);
        visit(station.latitude, Rules::latitude);
    }
    visit(sample.traceLocCourse, Rules::localizerCourse);
    visit(sample.traceWindDirection, Rules::whole);
    visit(sample.traceWindSpeed, Rules::windSpeed);
    visit(sample.traceObsI2, Rules::degrees);
    visit(sample.traceObsI3, Rules::degrees);
    for (auto* field : {&sample.traceInst2, &sample.traceInst3, &sample.traceInst2NAVselect,
                        &sample.traceInst3NAVselect, &sample.traceInst2ADFCard,
                        &sample.traceInst3ADFCard, &sample.traceNAV1freq, &sample.traceNAV2freq,
                        &sample.traceADFfreq, &sample.traceDMEfreq, &sample.traceAPhdg})
        visit(*field, Rules::whole);
    visit(sample.traceAPtas, Rules::airspeed);
    visit(sample.traceAPalt, Rules::whole);
    visit(sample.traceHDGbug, Rules::whole);
    visit(sample.traceComment, Rules::comment);
}

/// The same for all 40 fields.
template <class AnySample, class Visitor>
void visitFields(AnySample& sample, Visitor visit) {
    visit(sample.traceLat, SampleRules::latitude);
    visit(sample.traceLon, SampleRules::longitude);
    visitFieldsBehindPosition(sample, visit);
}

} // namespace tarnel
