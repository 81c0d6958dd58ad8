#pragma once

#include <QString>

namespace tarnel {

/// Makes the pages of the help: `sources` holds each as NAME.LANGUAGE.md, and it becomes
/// LANGUAGE/NAME.html in `out`, beside the pictures of the panels. Throws a PlanError for a page
/// without a heading, a link to a page or a picture that there isn't, and a page that stands in one
/// language only. Needs a QApplication.
void buildHelp(const QString& sources, const QString& out);

} // namespace tarnel
