#include "instruments/stopwatch_face.h"

namespace tarnel {

void tvsmtimer::showTime() {
    digits.show(minsec.get());
}

} // namespace tarnel
