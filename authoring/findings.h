#pragma once

#include <string>
#include <vector>

namespace tarnel {

/// Something in a course that a student must not meet.
struct SourceFinding {
    int line = 0; ///< of the source; 0 stands for the whole
    std::string text;
    bool mayStand = false; ///< told, and built all the same
};

using SourceFindings = std::vector<SourceFinding>;

} // namespace tarnel
