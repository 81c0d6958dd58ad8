#pragma once

#include "shell/training_desk.h"

namespace tarnel {

/// Writes the session of a flight in the log into a file that the user picks.
void exportFlight(TrainingDesk& training, BoxDesk& boxes, const LoggedFlight& flight);

} // namespace tarnel
