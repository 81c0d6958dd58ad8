#include "window/chart/comment_card.h"
#include "window/legibility.h"
#include "window/strip/control_strip.h"
#include "window/student_fixture.h"

#include <QStackedWidget>

namespace tarnel {
namespace {

// No word is cut off and nothing overlaps, in neither language, on any page, up from the smallest
// window.
TEST_F(Student, ReadsEverythingInFull) {
    for (const StringTable* texts : {&germanTable(), &englishTable()})
        for (const QSize size : {QSize(960, 540), QSize(1024, 768), QSize(1280, 800)})
            for (const bool large : {false, true})
                for (const bool writes : {false, true}) {
                    open(*texts, size);
                    form->PositionInst2(large);
                    if (writes) {
                        click("WriteComments");
                        form->UserControl11.c_TrackDelta = 2;
                    }
                    for (const char* page :
                         {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
                        turnTo(page);
                        const std::string where = std::string(page) + " at " +
                                                  std::to_string(size.width()) +
                                                  (large ? " large" : "");
                        expectTextsInFull(*window, where);
                        expectRoomForAll(*window->findChild<ControlStrip*>(), where);
                        if (writes)
                            expectRoomForAll(*window->findChild<CommentCard*>(), where);
                    }
                }
}

// What was measured at one size of type holds at another.
TEST_F(Student, ReadsEverythingInFullOnALargeScreen) {
    open(germanTable(), {3840, 2160});
    settle();
    for (const char* page : {"PageChart", "PageWind"}) {
        turnTo(page);
        expectTextsInFull(*window, page);
    }
}

} // namespace
} // namespace tarnel
