#pragma once

#include "authoring/built_question.h"
#include "authoring/findings.h"

namespace tarnel {

/// Proves that the flight behind a question is its solution and comes to its end: straight on until
/// the needle's way is seen, onto the required bearing, along the arc and onto the final course, or
/// twice around the holding. Also that its first turn is the one that the answers tell.
void checkSolution(const BuiltQuestion& question, SourceFindings& findings);

/// The same for a holding, which the wind exercise flies too.
void checkHoldingFlown(const BuiltQuestion& question, SourceFindings& findings);

} // namespace tarnel
