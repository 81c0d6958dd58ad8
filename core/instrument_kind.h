#pragma once

#include <cstdint>

namespace tarnel {

/// The values of `Display`, `c_inst2` and `c_inst3`.
enum class InstrumentKind : std::int16_t { adf = 1, rmi, vor, hsi, dg };

} // namespace tarnel
