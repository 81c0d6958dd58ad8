#include "shell/own_courses_fixture.h"

#include <sys/stat.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

TEST_F(OwnCoursesTest, APipeADeviceOrALinkIsNoCourseFile) {
    const std::string study = "/study/e-qdm.sty";
    const auto link = [](const char* file, const char* target) {
        return [=](const std::string& place) {
            fs::remove(place + file);
            fs::create_symlink(target, place + file);
        };
    };
    fly(40);
    expectTold("e-qdm.sty", [&](const std::string& place) {
        fs::remove(place + study);
        ASSERT_EQ(mkfifo((place + study).c_str(), 0600), 0);
    });
    expectTold("e-qdm.sty", link(study.c_str(), "/dev/zero"));
    expectTold("e-qdm.sty", link(study.c_str(), "nowhere"));
    expectTold("q.ts", link("/sessions/q.ts", "/dev/zero"));
}

} // namespace
} // namespace tarnel
