#pragma once

#include "soak/program.h"

namespace tarnel {

/// Does something with the program that a student does: chosen by chance, and how by chance too.
/// Time passes where anything moves.
void doAnErrand(Program& program, SoakState& state);

} // namespace tarnel
