#include "shell/trainer_fixture.h"
#include "support/sample_session.h"

namespace tarnel {
namespace {

namespace fs = std::filesystem;

class DocumentsTest : public testing::Test {
  protected:
    static std::string withChart(const ApplicationFolder& folder) {
        fs::copy_file(TARNEL_DATA_FOLDER "/default.map", folder.path + "/default.map");
        return folder.path;
    }
    std::string put(const std::string& name, const std::string& content = "-") {
        const fs::path path = fs::path(folder.path) / name;
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return path.string();
    }
    static std::string session() {
        std::string text;
        for (const auto& lines : {sessionHeadLines(), sampleLines(), sampleLines()})
            for (const std::string& line : lines)
                text += line + "\r\n";
        return text;
    }
    std::string shownSession() { return form.UserControl11.c_SessionFileName; }

    ApplicationFolder folder;
    NotedWorld world;
    Form1 form{englishTable(), world, withChart(folder)};
};

TEST_F(DocumentsTest, TheBookOpensInTheLanguageAndItsAbsenceLeavesTheFlightAlone) {
    form.startButton.click();
    form.documents.openBook(26);
    EXPECT_THAT(world.boxes, testing::ElementsAre(testing::HasSubstr("The book was not found")));
    EXPECT_TRUE(world.opened.empty());
    put("Buch/buch_en.pdf");
    form.documents.openBook(26);
    form.documents.openBook(0);
    EXPECT_THAT(world.opened, testing::ElementsAre("buch_en.pdf 26", "buch_en.pdf 0"));
    EXPECT_TRUE(form.flight.flies());
    world.hasReader = false;
    form.documents.openBook(0);
    EXPECT_THAT(world.boxes.back(), testing::HasSubstr("No program"));
}

TEST_F(DocumentsTest, AnApproachChartBringsItsSessionAtRestOnly) {
    form.documents.openApproachChart(2);
    ASSERT_EQ(world.boxes.size(), 2U);
    EXPECT_THAT(world.boxes[0], testing::HasSubstr("NOT FOR NAVIGATIONAL PURPOSES"));
    EXPECT_THAT(world.boxes[1], testing::HasSubstr("eddr111app[1].pdf"));
    put("default/charts/eddr111app[1].pdf");
    const std::string german = put("default/sessions/orient eddr 27.ts", session());
    form.startButton.click();
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), "New Session.ts");
    EXPECT_TRUE(form.flight.flies());
    form.startButton.click();
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), german);
    const std::string english = put("default/sessions/e-orient eddr 27.ts", session());
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), english);
    EXPECT_EQ(world.opened.size(), 3U);
    EXPECT_EQ(world.boxes.size(), 5U);
}

TEST_F(DocumentsTest, FilesFromOutsideOpenAsTheirNamesSayAndOnlyAtRest) {
    const std::string flight = put("Grüße/my flight.ts", session());
    const std::string chart = put("other.MAP");
    fs::copy_file(TARNEL_DATA_FOLDER "/default.map", chart, fs::copy_options::overwrite_existing);
    form.startButton.click();
    form.files.openFile(flight);
    EXPECT_TRUE(form.flight.flies());
    form.startButton.click();
    form.files.openFile(flight);
    form.Timer1();
    EXPECT_EQ(told(form.sessionPanel, form.sessionPanel.tipText()), "my flight.ts " + flight);
    form.files.openFile(chart);
    EXPECT_EQ(form.UserControl11.c_ChartFileName.get(), chart);
    form.files.openFile(put("notes.txt", "no session\n"));
    form.files.openFile(folder.path + "/gone.ts");
    EXPECT_THAT(world.boxes, testing::ElementsAre(testing::HasSubstr("\"my flight.ts\""),
                                                  testing::HasSubstr("notes.txt"),
                                                  testing::HasSubstr("gone.ts")));
}

TEST_F(DocumentsTest, StatisticsAreDeletedOnlyOnAYes) {
    const auto counted = [this] { return world.settings().value("qxr1", "stats", "hsi_bad", "0"); };
    world.settings().setValue("qxr1", "stats", "hsi_bad", "7");
    world.answer = false;
    form.exerciseMenu.resetStatistics.click();
    EXPECT_EQ(counted(), "7");
    world.answer = true;
    form.exerciseMenu.resetStatistics.click();
    EXPECT_EQ(counted(), "0");
}

} // namespace
} // namespace tarnel
