#pragma once

#include <QString>

namespace tarnel {

/// Makes the pages of the help: `sources` holds each as NAME.LANGUAGE.md, and it becomes
/// LANGUAGE/NAME.html in `out`. Throws a PlanError for a page without a heading, a link
/// to a page that there isn't, and a page that stands in one language only.
void buildHelp(const QString& sources, const QString& out);

} // namespace tarnel
