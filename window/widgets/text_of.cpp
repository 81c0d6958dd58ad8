#include "window/widgets/text_of.h"

namespace tarnel {

QString textOf(const StringTable& texts, Text id) {
    const std::string_view text = texts[id];
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace tarnel
