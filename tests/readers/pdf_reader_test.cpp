#include "readers/pdf_reader.h"

#include <gtest/gtest.h>

namespace tarnel {
namespace {

TEST(PdfReader, AUrlBeginsAtTheRootOrAtADrive) {
    const PdfReader browser({"browser", {"%u"}}, {});
    EXPECT_EQ(browser.opening("/tmp/a b:c.pdf", 0).words[0], "file:///tmp/a%20b%3Ac.pdf");
    EXPECT_EQ(browser.opening("C:/Flüge/a.pdf", 0).words[0], "file:///C:/Fl%C3%BCge/a.pdf");
}

} // namespace
} // namespace tarnel
