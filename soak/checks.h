#pragma once

#include <cstdint>

namespace tarnel {

class Form1;
class MainWindow;

/// Throws a `Fault` if a number of the trainer is none or out of its range, or if a box or a popup
/// is left over.
void check(Form1& form, const MainWindow& window);

/// What a program holds while it is at rest.
struct Floor {
    double hour = 0;        ///< of the soak
    double age = 0;         ///< of the program, in hours
    std::int64_t bytes = 0; ///< live on the heap
    int widgets = 0;
    int files = 0; ///< open
};

[[nodiscard]] Floor takeFloor(double hour, double age);

} // namespace tarnel
