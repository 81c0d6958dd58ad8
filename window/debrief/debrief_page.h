#pragma once

#include "window/debrief/debrief_model.h"

#include <QByteArray>
#include <QString>

namespace tarnel {

/// A page of paper with the debrief that is shown: title, chart, plot and findings.
[[nodiscard]] QByteArray debriefPdf(const DebriefModel& model);
/// The same page as a picture.
[[nodiscard]] QByteArray debriefPng(const DebriefModel& model);

/// Asks for a file and writes the page, the picture or the values; a box tells if that failed.
void connectExports(const DebriefModel& model);

} // namespace tarnel
