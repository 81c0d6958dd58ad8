#pragma once

#include "debrief/debrief.h"
#include "debrief/flown_path.h"

#include <functional>
#include <optional>
#include <utility>

namespace tarnel {

/// `Judgement`: the debrief of one flight while it is written.
class Judgement {
  public:
    Judgement(std::size_t samples, Strictness strict) : strictness(strict) {
        told.outside.resize(samples);
    }

    Debrief told;
    const Strictness strictness;

    [[nodiscard]] double limit(Limit which) const { return limitOf(which, strictness); }

    /// Right up to `greatest`.
    Finding& atMost(FindingKind kind, double value, double greatest, SampleSpan samples);
    /// Right within `tolerance` of `expected`.
    Finding& about(FindingKind kind, double value, double expected, double tolerance,
                   SampleSpan samples);
    /// Right from `low - tolerance` to `high + tolerance`; the middle of that is expected.
    Finding& between(FindingKind kind, double value, std::pair<double, double> ends,
                     double tolerance, SampleSpan samples);
    /// Right if it is what is expected.
    Finding& same(FindingKind kind, double value, double expected, SampleSpan samples);
    /// Something that should not be.
    Finding& fault(FindingKind kind, SampleSpan samples);
    /// Told without a verdict.
    Finding& open(FindingKind kind, double value, SampleSpan samples);

    /// Begins where the phase before it ended; one without a sample of its own is left out.
    Phase* phase(PhaseKind kind, int last);
    /// A series of the value that `of` has at each sample.
    Series& series(SeriesKind kind, FindingUnit unit,
                   const std::function<std::optional<double>(int)>& of);
    void outside(int sample) { told.outside[static_cast<std::size_t>(sample)] = true; }

  private:
    Finding& add(FindingKind kind, double value, SampleSpan samples);
};

/// The debrief's last series: what the dial shows of the heading.
void plotHeading(Judgement& judgement, const FlownPath& path);

} // namespace tarnel
