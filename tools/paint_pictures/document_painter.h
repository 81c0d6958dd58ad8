// The icons of the files that the program writes: a sheet with what is in it, and the program's
// icon.
#pragma once

#include <QImage>

namespace tarnel {

enum class DocumentKind { session, chart };

QImage paintDocument(DocumentKind kind, int side);

} // namespace tarnel
