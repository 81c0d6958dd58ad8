#include "window/chart/spoken_place.h"

#include "core/number_text.h"
#include "window/widgets/text_of.h"

#include <cmath>
#include <cstdint>

namespace tarnel {

namespace {

/// Fills degrees and minutes, to a tenth of a minute, into the text of a hemisphere.
QString angleText(double degrees, int digits, const QString& hemisphere) {
    const auto tenths = static_cast<std::int64_t>(std::llround(std::abs(degrees) * 600));
    return hemisphere.arg(QString::fromStdString(zeroPadded(tenths / 600, digits)),
                          QString::number(static_cast<double>(tenths % 600) / 10, 'f', 1));
}

} // namespace

QString spokenPosition(const GeoPosition& position, const StringTable& texts) {
    const Text latitude = position.latitude < 0 ? Text::placeSouth : Text::placeNorth;
    const Text longitude = position.longitude < 0 ? Text::placeWest : Text::placeEast;
    return angleText(position.latitude, 2, textOf(texts, latitude)) + QLatin1Char(' ') +
           angleText(position.longitude, 3, textOf(texts, longitude));
}

} // namespace tarnel
