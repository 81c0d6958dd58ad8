#pragma once

#include "core/geo_position.h"
#include "strings/string_table.h"

#include <QString>

namespace tarnel {

/// A position as it is read out: degrees, minutes to a tenth and hemispheres, latitude first.
[[nodiscard]] QString spokenPosition(const GeoPosition& position, const StringTable& texts);

} // namespace tarnel
