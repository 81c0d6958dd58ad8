// tarnel-course as the build runs it: without the window, so that a change there makes no course
// anew. An installation has it in the one program of all names.

#include "tools/course/course_program.h"

int main(int argc, char** argv) {
    return tarnel::runCourse(argc, argv);
}
