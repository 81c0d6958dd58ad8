#pragma once

#include "strings/string_table.h"

namespace tarnel {

/// Runs the trainer in the language of `texts` until its window is closed, and opens the file that
/// the command line names. Returns the program's exit status; 0 also if it already runs, and its
/// window was brought to the front with that file, and for help and version; 1 if it runs and does
/// not answer, which a box tells; 2 for a wrong command line.
int runApplication(int argc, char** argv, const StringTable& texts);

} // namespace tarnel
