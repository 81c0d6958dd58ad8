#include "window/every_page.h"
#include "window/legibility.h"

namespace tarnel {
namespace {

struct Letters {
    const char* family;
    double scale;
    const StringTable& texts;
    QSize window;
};

// With the desktop's letters at 150 %, or of a wider typeface, no word is cut off on any page.
TEST_F(EveryPage, ReadsEverythingInFullInLargeLetters) {
    for (const Letters& letters : {Letters{"Liberation Sans", 1.5, germanTable(), {1024, 768}},
                                   {"Liberation Sans", 1.5, englishTable(), {1024, 768}},
                                   {"DejaVu Sans", 1, germanTable(), {1280, 800}}}) {
        desktopFont = look::font(look::bodyType * letters.scale);
        desktopFont.setFamily(QString::fromLatin1(letters.family));
        goEverywhere(letters.texts, letters.window, [&](QWidget& shown, const std::string& page) {
            expectTextsInFull(shown, " " + page + " in " + letters.family);
        });
    }
}

} // namespace
} // namespace tarnel
