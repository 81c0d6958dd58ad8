#include "shell/memory_log.h"
#include "window/exercise_student.h"

#include <QComboBox>
#include <QDateTime>
#include <QImage>
#include <QMenu>
#include <QSpinBox>
#include <QTableWidget>

namespace tarnel {
namespace {

using testing::HasSubstr;

/// A student with some weeks of answers and some flights behind him.
class ProgressStudent : public ExerciseStudent {
  protected:
    static constexpr std::int64_t hour = 3'600'000;

    void begin(const StringTable& texts, QSize size) {
        writeStudy(texts.isGerman() ? "qdm.sty" : "e-qdm.sty", study(texts));
        ExerciseStudent::begin("qdm", texts, size);
        form->QAform1.activePanel()->cancelButton.click(); // only the flights were wanted
        settle();
        form->training.useLog([this](TrainingDesk&) {
            auto made = std::make_unique<MemoryLog>();
            log = made.get();
            fill();
            return made;
        });
    }
    static std::string study(const StringTable& /*texts*/) {
        std::string text;
        for (int i = 0; i < 8; ++i) {
            StudyRecord record;
            record[StudyColumn::qa] = std::to_string(i) + " NDB";
            record[StudyColumn::ans1] = "10";
            record[StudyColumn::ans2] = "decrease";
            record[StudyColumn::ans3] = "left";
            record[StudyColumn::ans4] = "increase";
            record[StudyColumn::sessionName] = "flight.ts";
            text += writeStudyRecord(record, static_cast<int>(ExerciseType::qdm));
        }
        return text;
    }
    void fill() {
        const std::int64_t now = QDateTime::currentMSecsSinceEpoch();
        const auto add = [&](int weeks, ExerciseType exercise, Text spot, int count, int right,
                             int seconds) {
            for (int i = 0; i < count; ++i) {
                AnsweredRow row;
                row.when = row.asked = now - weeks * 7 * 24 * hour - i;
                row.exercise = exercise;
                row.spot = spot;
                row.question = i;
                row.rows = 1;
                row.right = i < right;
                row.milliseconds = 1000 * seconds;
                log->add(row);
            }
        };
        for (int week = 11; week >= 0; --week) {
            add(week, ExerciseType::hsiHolding, Text::spotEntryOffsetLeft, 6 + week % 4,
                3 + week % 2, 20 + week);
            add(week, ExerciseType::dgHolding, Text::spotTurnParallel, 8, 4 + (week < 5), 24);
            add(week, ExerciseType::dmeArc, Text::spotLeadRadial, 7, 5, 19);
            add(week, ExerciseType::qdr, Text::spotQdrAngle, 11, 11 - week % 5, 14);
            add(week, ExerciseType::adfPosition, Text::spotQdm, 12, 12 - week % 3, 9);
        }
        add(3, ExerciseType::wind, Text::spotCrosswind, 4, 4, 31);
        for (int i = 0; i < 23; ++i) {
            LoggedFlight flight;
            flight.when = now - (22 - i) * 13 * hour;
            flight.taskKey = i % 3 == 0 ? "arc" : "hold";
            flight.title = i % 3 == 0 ? "Arc LDN 12 NM to R-350" : "Holding at MR, inbound 240°";
            flight.findings.resize(2);
            flight.findings[0].verdict = Verdict::right;
            flight.findings[1].verdict = i % 4 == 0 ? Verdict::right : Verdict::wrong;
            log->add(flight, std::string(4000, 's'), {});
        }
    }
    QWidget& page() { return find<QWidget>("Progress"); }
    QTableWidget& table() { return find<QTableWidget>("ProgressExercises"); }
    QString cell(int row, int column) { return table().item(row, column)->text(); }
    QString plot() { return find<QWidget>("ProgressPlot").accessibleName(); }
    void openPage() {
        window->findChild<QAction*>("mnuProgress")->trigger();
        settle();
    }

    MemoryLog* log = nullptr;
};

TEST_F(ProgressStudent, SeesHowHeIsDoingByKeyboardWhileTheFlightRests) {
    begin(englishTable(), {1280, 800});
    form->startButton.click();
    settle();
    openPage();
    EXPECT_FALSE(form->flight.flies());
    EXPECT_TRUE(page().isVisible());
    EXPECT_EQ(focus(), "ProgressExercises");
    EXPECT_EQ(cell(0, 0), "HSI Holding");
    EXPECT_EQ(cell(0, 1), "3 / 6");
    EXPECT_EQ(cell(0, 2), "50 %");
    EXPECT_EQ(cell(0, 4), "20 s");
    EXPECT_EQ(cell(0, 6), "today");
    EXPECT_TRUE(plot().startsWith("HSI Holding"));
    press(Qt::Key_Down);
    EXPECT_TRUE(plot().startsWith("DG Holding")) << plot().toStdString();
    press(Qt::Key_M);
    EXPECT_FALSE(form->flight.flies()) << "the trainer below rests";
    for (int i = 0; i < 40; ++i) {
        press(Qt::Key_Tab);
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_TRUE(page().isAncestorOf(QApplication::focusWidget())) << focus();
    }
    click("EarlierSpan");
    EXPECT_EQ(cell(0, 1), "4 / 7");
    EXPECT_EQ(table().item(table().rowCount() - 1, 1)->text(), "not asked");
    press(Qt::Key_Escape);
    EXPECT_FALSE(page().isVisible());
    EXPECT_TRUE(find<QWidget>("Command6").isEnabled());
    QTest::keyClick(window.get(), Qt::Key_M);
    settle();
    EXPECT_TRUE(form->flight.flies());
}

TEST_F(ProgressStudent, PractisesAWeakSpot) {
    begin(germanTable(), {1024, 768});
    openPage();
    auto& link = findShown(
        (("PractiseSpot" + std::to_string(static_cast<int>(Text::spotEntryOffsetLeft))).c_str()));
    EXPECT_THAT(link.accessibleName().toStdString(),
                HasSubstr("Üben ›: Offset Entries von links, "));
    EXPECT_THAT(link.accessibleName().toStdString(), HasSubstr(" von 12"));
    for (int row = 0; row < table().rowCount(); ++row)
        if (cell(row, 0) == "QDM Übungen")
            table().selectRow(row);
    settle();
    click("PractiseMistakes");
    EXPECT_FALSE(page().isVisible());
    EXPECT_EQ(form->QAform1.c_QAtype, static_cast<int>(ExerciseType::qdm));
    EXPECT_TRUE(form->QAform1.posed());
    EXPECT_EQ(form->QAform1.activePanel()->mistakesBox.value(), 1);
}

TEST_F(ProgressStudent, KeepsHisFlightsInOrder) {
    begin(englishTable(), {1280, 800});
    openPage();
    click("AllFlights");
    auto& list = find<QTableWidget>("FlightList");
    EXPECT_EQ(list.rowCount(), 23);
    EXPECT_EQ(list.item(0, 3)->text(), "1 of 2");
    click("PinFlight");
    EXPECT_TRUE(log->flights()[0].pinned);
    EXPECT_EQ(find("PinFlight").text(), "Unpin");
    find<QSpinBox>("MostFlights").setValue(4);
    settle();
    EXPECT_EQ(log->flights().size(), 5U) << "the pinned one and four more";
    list.selectRow(1);
    world.answer = false;
    click("DeleteFlight");
    EXPECT_EQ(log->flights().size(), 5U);
    world.answer = true;
    click("DeleteFlight");
    EXPECT_EQ(log->flights().size(), 4U);
    list.selectRow(0);
    world.chosen = (folder / "mine.ts").string();
    click("ExportFlight");
    EXPECT_EQ(std::filesystem::file_size(folder / "mine.ts"), 4000U);
    list.setFocus();
    press(Qt::Key_Escape);
    EXPECT_TRUE(page().isVisible());
    window->findChild<QAction*>("DeleteLog")->trigger();
    EXPECT_TRUE(log->flights().empty());
    EXPECT_EQ(cell(0, 1), "not asked");
}

TEST_F(ProgressStudent, OpensFlightsThatHeFlewEarlierAloneAndOverOneAnother) {
    begin(englishTable(), {1280, 800});
    openPage();
    LoggedFlight flight{.taskKey = "hold vor1 240 right 1\nMUN", .title = "Holding"};
    for (const std::int64_t when : {1, 2, 3}) {
        flight.when = QDateTime::currentMSecsSinceEpoch() + when;
        log->add(flight, form->UserControl11.sessionBytes(), {});
    }
    click("SpanMonth"); // reads anew
    click("OpenLatest23");
    EXPECT_THAT(world.boxes, testing::ElementsAre(HasSubstr("The file of this flight is damaged")));
    EXPECT_TRUE(page().isVisible());
    click("AllFlights");
    auto& list = find<QTableWidget>("FlightList");
    for (const auto& [last, compares] : {std::pair{1, true}, std::pair{3, false}}) {
        list.clearSelection();
        list.setRangeSelected({0, 0, last, list.columnCount() - 1}, true);
        settle();
        EXPECT_EQ(find("CompareFlights").isEnabled(), compares) << "flights at one task alone";
        EXPECT_FALSE(find("OpenFlight").isEnabled());
    }
    list.setRangeSelected({3, 0, 3, list.columnCount() - 1}, false);
    settle();
    click("CompareFlights");
    EXPECT_FALSE(page().isVisible());
    ASSERT_TRUE(form->debrief.attempt());
    EXPECT_EQ(form->debrief.compared().size(), 2U);
    EXPECT_TRUE(findShown<QWidget>("DebriefCard").isVisible());

    openPage();
    world.chosen = (folder / "plot.png").string();
    window->findChild<QAction*>("ExportPlot")->trigger();
    const QWidget& plot = find<QWidget>("ProgressPlot");
    EXPECT_EQ(QImage((folder / "plot.png").c_str()).size(), plot.size() * 2);
}

/// TARNEL_SHOTS names a folder for pictures of the page, to be looked at.
TEST_F(ProgressStudent, FitsSmallAndLargeWindowsInBothLanguages) {
    for (const StringTable* texts : {&englishTable(), &germanTable()})
        for (const QSize size : {QSize(1024, 768), QSize(1280, 800), QSize(1920, 1080)}) {
            begin(*texts, size);
            openPage();
            for (int shown = 0; shown < 2; ++shown) {
                for (const QWidget* widget : page().findChildren<QWidget*>())
                    if (widget->isVisible() && !widget->visibleRegion().isEmpty() &&
                        !widget->isWindow()) {
                        const QRect place(widget->mapTo(&page(), QPoint()), widget->size());
                        EXPECT_TRUE(page().rect().contains(place))
                            << widget->objectName().toStdString() << size.width();
                    }
                if (const char* shots = std::getenv("TARNEL_SHOTS"))
                    window->grab().save(QStringLiteral("%1/%2-%3-%4.png")
                                            .arg(shots)
                                            .arg(shown)
                                            .arg(size.width())
                                            .arg(texts->isGerman() ? "de" : "en"));
                click("AllFlights");
            }
        }
}

} // namespace
} // namespace tarnel
