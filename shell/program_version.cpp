#include "shell/program_version.h"

namespace tarnel {

std::string_view programVersion() {
    return TARNEL_VERSION;
}

} // namespace tarnel
