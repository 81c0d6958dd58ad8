#pragma once

namespace tarnel {

/// `tarnel-fly`: flies a written plan without showing a window. Returns the exit status.
int runFly(int argc, char** argv);

} // namespace tarnel
