#include "window/frame/flight_guard.h"
#include "window/student_fixture.h"

#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>

namespace tarnel {
namespace {

using testing::HasSubstr;

class FlightSignsTest : public Student {
  protected:
    /// Opens the program anew on the same shelf.
    void start(const StringTable& texts = englishTable()) {
        guard.reset();
        window.reset();
        open(texts);
        guard = std::make_unique<FlightGuard>(form->flightDesk.keeper, folder.path() + "/flights");
        settle();
    }
    void flyAMinute() {
        click("Command6");
        fly(60);
        click("Command6");
    }
    QMenu& openedList() {
        auto& list = find<QMenu>("mnuBringBack");
        emit list.aboutToShow();
        return list;
    }
    [[nodiscard]] std::string title() const { return window->windowTitle().toStdString(); }

    QTemporaryDir folder;
    std::unique_ptr<FlightGuard> guard;
};

TEST_F(FlightSignsTest, TheWindowTellsOfAFlightAndWhereItWent) {
    const std::string saved = "New Session.ts \u2013 Tarnel";
    const std::string unsaved = "New Session.ts (not saved) \u2013 Tarnel";
    start();
    auto& notice = find<QLabel>("StatusNotice");
    EXPECT_EQ(title(), saved);
    ASSERT_EQ(openedList().actions().size(), 1);
    EXPECT_FALSE(openedList().actions()[0]->isEnabled());
    flyAMinute();
    EXPECT_EQ(title(), unsaved);
    EXPECT_FALSE(notice.isVisible());
    form->fileMenu.newSession.click();
    settle();
    EXPECT_TRUE(notice.isVisible());
    EXPECT_THAT(notice.text().toStdString(), HasSubstr("1 min 0 s"));
    EXPECT_EQ(title(), saved);
    const QList<QAction*> flights = openedList().actions();
    ASSERT_EQ(flights.size(), 1);
    EXPECT_THAT(flights[0]->text().toStdString(), HasSubstr("1 min 0 s   MUN"));
    flights[0]->trigger();
    settle();
    EXPECT_EQ(form->UserControl11.c_TraceBufferMax, 45);
    EXPECT_EQ(title(), unsaved);
    form->flightDesk.notice.setVisible(false);
    settle();
    EXPECT_FALSE(notice.isVisible());
}

TEST_F(FlightSignsTest, TheNextStartOffersTheLastFlightInOneLine) {
    start(germanTable());
    flyAMinute();
    EXPECT_TRUE(window->close());
    for (const char* answer : {"", "FlightOfferTake", "FlightOfferClose"}) {
        SCOPED_TRACE(answer);
        start();
        auto& offer = find<QWidget>("FlightOffer");
        ASSERT_TRUE(offer.isVisible());
        EXPECT_LE(offer.height(), window->menuBar()->height());
        if (*answer)
            click(answer);
        else
            click("Command6"); // flies on, and is in the way no more
        EXPECT_FALSE(offer.isVisible());
        if (answer == std::string("FlightOfferTake")) {
            EXPECT_EQ(form->UserControl11.c_TraceBufferMax, 45);
            start();
            EXPECT_FALSE(find<QWidget>("FlightOffer").isVisible());
            flyAMinute();
            guard.reset(); // as a signal ends it
        }
    }
    start();
    EXPECT_FALSE(find<QWidget>("FlightOffer").isVisible());
}

} // namespace
} // namespace tarnel
