// Tarnel: one program for all of its names. Called as `tarnel` it is the trainer in the language of
// the locale; by another name it is the trainer in one language, or one of the tools.

#include "strings/locale_language.h"
#include "tools/course/course_program.h"
#include "tools/fly/fly_program.h"
#include "window/frame/application.h"

#include <string_view>

namespace {

using namespace tarnel;

struct Program {
    std::string_view name;
    int (*run)(int argc, char** argv);
};

constexpr Program programs[] = {
    {"tarnel-de", [](int argc, char** argv) { return runApplication(argc, argv, germanTable()); }},
    {"tarnel-en", [](int argc, char** argv) { return runApplication(argc, argv, englishTable()); }},
    {"tarnel-fly", runFly},
    {"tarnel-course", runCourse},
};

} // namespace

int main(int argc, char** argv) {
    std::string_view name = argc > 0 ? argv[0] : "";
    name.remove_prefix(name.rfind('/') + 1);
    for (const Program& program : programs)
        if (name == program.name)
            return program.run(argc, argv);
    return runApplication(argc, argv, localeTable());
}
