#pragma once

#include "shell/outside_world.h"
#include "shell/training_log.h"
#include "strings/string_table.h"

#include <string>

namespace tarnel {

/// All answers of a log as a table: a line of headings, then one line an answer, the oldest first;
/// UTF-8, commas between the values, each in quotation marks where RFC 4180 asks for them, lines
/// ended by CR LF. Times are of this computer's clock.
[[nodiscard]] std::string answersCsv(TrainingLog& log, const StringTable& texts,
                                     OutsideWorld& clock);

} // namespace tarnel
