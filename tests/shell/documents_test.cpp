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
        const fs::path path = folder.at / pathOf(name);
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << content;
        return textOf(path);
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

TEST_F(DocumentsTest, WhatIsMissingIsToldAndTheFlightGoesOn) {
    using testing::ElementsAre, testing::HasSubstr;
    form.startButton.click();
    form.documents.OpenBook(26);
    form.documents.openApproachChart(2);
    form.documents.openHelp("radios");
    form.documents.openProductPage();
    EXPECT_THAT(world.boxes,
                ElementsAre("Tarnel - Book: The book was not found !\nPlease install Tarnel again "
                            "with the book, or have it set by \"handbook/make\".",
                            HasSubstr("\n\nNOT FOR NAVIGATIONAL PURPOSES - INFORMATION ONLY"),
                            HasSubstr("eddr111app[1].pdf"), HasSubstr("Hilfe/en/index.html"),
                            HasSubstr("Hilfe/en/tarnel.html")));
    EXPECT_TRUE(world.opened.empty());
    for (const char* file : {"Buch/buch_en.pdf", "default/charts/eddr111app[1].pdf",
                             "Hilfe/en/index.html", "Hilfe/en/radios.html"})
        put(file);
    form.documents.openHelp("radios");
    form.documents.openHelp("no such page");
    form.documents.OpenBook(26);
    world.boxes.clear();
    world.hasReader = false;
    form.documents.bookForm.open(2);
    form.documents.chartForm.open(2);
    form.documents.chartForm.Check1.click();
    form.documents.openUserGuide();
    EXPECT_THAT(world.opened,
                ElementsAre("Hilfe/en/radios.html as help", "Hilfe/en/index.html as help",
                            "buch_en.pdf 26", "buch_en.pdf 26", "eddr111app[1].pdf 0",
                            "Hilfe/en/index.html in the browser"));
    EXPECT_THAT(world.boxes, ElementsAre(HasSubstr("Tarnel - PDF reader not found: No PDF"),
                                         HasSubstr("Tarnel - Approach Charts: "),
                                         HasSubstr("[1].pdf"), HasSubstr("index.html")));
    EXPECT_TRUE(form.flight.flies());

    const Form1 later{englishTable(), world, folder.path};
    EXPECT_EQ(later.documents.chartForm.Check1.value(), 1);
    EXPECT_EQ(later.documents.bookForm.Check1.value(), 0);
}

TEST_F(DocumentsTest, AnApproachChartBringsItsSessionAtRestOnly) {
    put("default/charts/eddr111app[1].pdf");
    const std::string german = put("default/sessions/orient eddr 27.ts", session());
    form.startButton.click();
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), "New Session.ts");
    EXPECT_TRUE(form.flight.flies());
    form.startButton.click();
    form.chartPage.trace.set(0);
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), german);
    EXPECT_EQ(form.UserControl11.c_TraceEN, 1);
    const std::string english = put("default/sessions/e-orient eddr 27.ts", session());
    form.documents.openApproachChart(2);
    EXPECT_EQ(shownSession(), english);
    EXPECT_EQ(world.opened.size(), 3U);
    EXPECT_EQ(world.boxes.size(), 3U);
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
