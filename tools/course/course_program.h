#pragma once

namespace tarnel {

/// `tarnel-course`: makes, checks and prints courses. Returns the exit status.
int runCourse(int argc, char** argv);

} // namespace tarnel
