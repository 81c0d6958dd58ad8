#pragma once

#include "core/recording.h"
#include "persistence/line_source.h"

#include <limits>

namespace tarnel {

/// What the fields of a sample may hold.
struct SampleRules {
    static constexpr DegreesRule latitude{FileField::latitude, 89};
    static constexpr DegreesRule longitude{FileField::longitude, farthestLongitude};
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
#define PLACE(name, type, rule, value)
#define FIELD(name, type, rule, value) visit(sample.name, SampleRules::rule);
#define STATIONS()                                                                                 \
    for (auto& station : sample.traceStations) {                                                   \
        visit(station.longitude, SampleRules::longitude);                                          \
        visit(station.latitude, SampleRules::latitude);                                            \
    }
#include "core/sample_rows.def"
}

/// The same for all 40 fields.
template <class AnySample, class Visitor>
void visitFields(AnySample& sample, Visitor visit) {
#define PLACE(name, type, rule, value) visit(sample.name, SampleRules::rule);
#include "core/sample_rows.def"
    visitFieldsBehindPosition(sample, visit);
}

} // namespace tarnel
