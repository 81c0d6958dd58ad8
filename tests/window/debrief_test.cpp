#include "look/look.h"
#include "persistence/file_bytes.h"
#include "shell/finding_text.h"
#include "shell/memory_log.h"
#include "support/temporary_folder.h"
#include "window/chart/chart_view.h"
#include "window/debrief/finding_list.h"
#include "window/debrief/plot_view.h"
#include "window/student_fixture.h"

#include <QImage>
#include <QPainterPath>

#include <algorithm>

namespace tarnel {
namespace {

constexpr QRgb outsideOnPaper = 0xFFB05A00;
constexpr QRgb outsideOnPanel = 0xFFFF8000;

int countOf(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == colour ? 1 : 0;
    return count;
}

/// A student who flies a practice flight far off its example.
class DebriefView : public Student {
  protected:
    void practise(const StringTable& texts = englishTable(), QSize size = {1280, 800}) {
        open(texts, size);
        form->exerciseMenu.vorPractice[0]->click();
        settle();
        flyOff();
    }
    void flyOff(std::int16_t heading = 200) {
        form->startButton.click();
        fly(20);
        form->coupling.setHeadingBug(heading);
        fly(60);
        form->startButton.click();
        settle();
    }
    void openDebrief() {
        findShown("Debrief").click();
        settle();
    }
    QImage picture(QWidget& widget) { return widget.grab().toImage(); }
    FindingList& list() { return find<FindingList>("DebriefFindings"); }
    PlotView& plot() { return find<PlotView>("DebriefPlotView"); }
    [[nodiscard]] const std::vector<Finding>& findings() const {
        return form->debrief.attempt()->debrief.findings;
    }

    TemporaryFolder folder;
};

TEST_F(DebriefView, TakesThePlaceOfStripAndRadiosAndGivesItBack) {
    practise();
    QWidget& keyboard = find<QWidget>("Option6");
    keyboard.setFocus();
    settle();
    const auto looks = [this] {
        std::vector<QImage> all;
        for (const char* name : {"NAVControlFace1", "DMEControlFace1", "APControlFace1", "Frame2",
                                 "UserControl13_0", "UserControl13_1", "HScroll1"})
            all.push_back(picture(find<QWidget>(name)));
        return all;
    };
    const std::vector<QImage> before = looks();
    openDebrief();
    for (const char* name : {"QAform1", "NAVControlFace1", "APControlFace1", "Frame2"})
        EXPECT_FALSE(find<QWidget>(name).isVisible()) << name;
    EXPECT_TRUE(list().isVisible());
    EXPECT_TRUE(plot().isVisible());
    EXPECT_TRUE(list().hasFocus());
    form->debrief.goTo(5);
    settle();
    QTest::keyClick(&plot(), Qt::Key_Escape);
    settle();
    settle();
    EXPECT_FALSE(form->debrief.isOpen());
    EXPECT_EQ(looks(), before);
    EXPECT_TRUE(keyboard.hasFocus());
}

TEST_F(DebriefView, KeysAndMouseGoFromFindingToMomentAndBack) {
    practise();
    openDebrief();
    ASSERT_GE(findings().size(), 2U);
    QTest::keyClick(&list(), Qt::Key_Down);
    settle();
    EXPECT_EQ(form->debrief.finding(), 1U);
    EXPECT_EQ(form->debrief.moment(), findings()[1].samples.first);
    QTest::keyClick(&plot(), Qt::Key_End);
    EXPECT_EQ(form->debrief.moment(), form->UserControl11.c_TraceBufferMax - 1);
    QTest::keyClick(&plot(), Qt::Key_Left);
    QTest::keyClick(&plot(), Qt::Key_PageDown);
    EXPECT_EQ(form->debrief.moment(), form->UserControl11.c_TraceBufferMax - 2 - 45);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(form->debrief.moment(), findings()[1].samples.first);
    const PlotLayout& layout = plot().laidOut();
    const auto at = [&](int sample) {
        return QPoint(static_cast<int>(layout.xAt(sample)),
                      static_cast<int>(layout.rows[0].frame.center().y()));
    };
    drag(plot(), at(10), at(30) - at(10));
    EXPECT_NEAR(form->debrief.moment(), 30, 1);
    EXPECT_NE(plot().hasFocus(), list().hasFocus());
    EXPECT_EQ(list()
                  .model()
                  ->index(0, 0)
                  .data(Qt::AccessibleTextRole)
                  .toString()
                  .contains(list().rows()[0].word),
              true);
}

TEST_F(DebriefView, MarksWhatIsOutsideOnChartAndPlotByMoreThanColour) {
    practise();
    openDebrief();
    const QImage chart = picture(*window->findChild<ChartView*>());
    EXPECT_GT(countOf(chart, outsideOnPaper), 100);
    const PlotLayout& layout = plot().laidOut();
    const PlotRow& row = layout.rows[0];
    ASSERT_FALSE(row.outside.empty());
    ASSERT_FALSE(row.bands.empty());
    const QImage plotted = picture(plot());
    EXPECT_GT(countOf(plotted, outsideOnPanel), 50);
    // Dots interrupt the line: along it, colour and dark take turns.
    QPainterPath outside;
    outside.addPolygon(row.outside.front());
    int turns = 0;
    bool dark = false;
    for (double share = 0; share < 1; share += 0.0005) {
        const QPointF spot = outside.pointAtPercent(share);
        if (!row.frame.contains(spot))
            continue;
        const bool now = qRed(plotted.pixel(spot.toPoint())) < 0x80;
        turns += now != dark ? 1 : 0;
        dark = now;
    }
    EXPECT_GT(turns, 4);
    const QPointF inBand(layout.xAt(4), row.bands.front().center().y());
    const QPointF beyond(inBand.x(), row.frame.top() + 3);
    EXPECT_GT(qGray(plotted.pixel(inBand.toPoint())), qGray(plotted.pixel(beyond.toPoint())) + 10);
    EXPECT_EQ(row.bands.front().top(), row.yAt(row.series->bands.front().high));
}

TEST_F(DebriefView, ComparesAttemptsAndExportsWhatIsShown) {
    practise();
    MemoryLog* log = nullptr;
    form->training.useLog([&](TrainingDesk&) {
        auto made = std::make_unique<MemoryLog>();
        log = made.get();
        return made;
    });
    openDebrief();
    click("DebriefFlyAgain");
    flyOff(210);
    const std::string flown = form->UserControl11.sessionBytes();
    openDebrief();
    click("DebriefClose");
    openDebrief(); // the same flight again
    ASSERT_EQ(log->flights().size(), 2U);
    EXPECT_EQ(log->flights()[0].attempt, 2);
    EXPECT_EQ(log->flights()[0].findings, findings());
    EXPECT_TRUE(*log->session(log->flights()[0].id) == flown);
    const PlotRow& row = plot().laidOut().rows[0];
    const auto& values = form->debrief.compared()[0].debrief.series[0].values;
    ASSERT_EQ(row.earlier.size(), 1U);
    EXPECT_EQ(row.earlier[0].back().back().y(), row.yAt(*values.back())) << "its own end";
    for (std::size_t i = 0; i < findings().size(); ++i) {
        const auto& before = form->debrief.compared()[0].debrief.findings;
        const auto same = std::ranges::find(before, findings()[i].kind, &Finding::kind);
        ASSERT_NE(same, before.end());
        EXPECT_EQ(list().rows()[i].earlier.toStdString(),
                  "#1 " + valueText(same->value, unitOf(same->kind), englishTable()));
    }
    const auto exported = [this](CommandButton& way, const char* name) {
        world.chosen = folder.path + "/" + name;
        way.click();
        return readFileBytes(*world.chosen, 1 << 24);
    };
    DebriefControls& ways = form->debriefControls;
    EXPECT_TRUE(exported(ways.exportPage, "page.pdf").starts_with("%PDF"));
    const std::string read = folder.path + "/page.txt";
    ASSERT_EQ(std::system(("pdftotext " + *world.chosen + " " + read).c_str()), 0);
    const QString printed = QString::fromStdString(readFileBytes(read, 1 << 20)).simplified();
    for (const FindingRow& finding : list().rows())
        EXPECT_TRUE(printed.contains(finding.sentence)) << finding.sentence.toStdString();
    EXPECT_TRUE(exported(ways.exportValues, "values.csv").find("#1 ") != std::string::npos);
    const std::string png = exported(ways.exportPicture, "picture.png");
    const QImage page = QImage::fromData(
        {reinterpret_cast<const uchar*>(png.data()), static_cast<qsizetype>(png.size())});
    EXPECT_GT(countOf(page, outsideOnPaper), 200);
    click("DebriefCompare");
    EXPECT_TRUE(plot().laidOut().rows[0].earlier.empty());
    EXPECT_TRUE(list().rows()[0].earlier.isEmpty());
    EXPECT_EQ(exported(ways.exportValues, "values.csv").find("#1 "), std::string::npos);
    world.chosen = folder.path + "/no folder/values.csv";
    ways.exportValues.click();
    EXPECT_THAT(world.boxes.back(), testing::HasSubstr("values.csv"));
}

TEST_F(DebriefView, TellsNothingOfAQuestionThatIsNotAnswered) {
    open();
    const auto& items = form->exerciseMenu.exercises;
    (*std::ranges::find(items, "hldhsi", [](const auto& item) { return item->name(); }))->click();
    settle();
    ASSERT_TRUE(form->exercise.questionOpen());
    EXPECT_FALSE(form->debriefControls.item.enabled());
    ExercisePanel& panel = *form->QAform1.activePanel();
    panel.flyButton.click();
    settle();
    form->startButton.click();
    fly(30);
    form->startButton.click();
    settle();
    ASSERT_TRUE(form->exercise.studentHasFlown());
    world.answer = false;
    openDebrief();
    EXPECT_FALSE(form->debrief.isOpen());
    EXPECT_EQ(panel.rows[0]->state(), RowState::open);
    world.answer = true;
    openDebrief();
    EXPECT_THAT(world.asked, testing::SizeIs(2));
    EXPECT_TRUE(form->debrief.isOpen());
    EXPECT_FALSE(form->debrief.choosesTask()) << "the question says what was to be flown";
    click("DebriefClose");
    form->backButton.click();
    settle();
    for (const auto& row : panel.rows)
        EXPECT_NE(row->state(), RowState::open) << "the debrief has told it";
}

TEST_F(DebriefView, ShadesOnTheChartWhatANeedleAllows) {
    practise();
    openDebrief();
    form->debriefControls.task.click();
    form->debrief.choose({.kind = TaskKind::trackTo, .station = Slot::ndb1, .course = 90});
    form->debriefControls.judge.click();
    settle();
    const QImage chart = picture(*window->findChild<ChartView*>());
    EXPECT_GT(countOf(chart, look::onPaper(look::rgb(0x5C6875), 0.08).rgb()), 500);
}

TEST_F(DebriefView, HasRoomInEveryWindowAndBothLanguages) {
    for (const StringTable* texts : {&englishTable(), &germanTable()})
        for (const QSize size : {QSize(940, 480), QSize(1024, 740), QSize(1920, 1050)}) {
            practise(*texts, size);
            openDebrief();
            SCOPED_TRACE(size.width());
            EXPECT_GE(list().height(), 3 * 20);
            for (const PlotRow& row : plot().laidOut().rows)
                EXPECT_GE(row.frame.height(), 28);
            for (const char* name : {"DebriefFlyAgain", "DebriefCompare", "DebriefClose"}) {
                QWidget& button = find<QWidget>(name);
                EXPECT_TRUE(button.parentWidget()->rect().contains(button.geometry())) << name;
                EXPECT_FALSE(button.geometry().intersects(list().parentWidget()->geometry()))
                    << name;
            }
        }
}

} // namespace
} // namespace tarnel
