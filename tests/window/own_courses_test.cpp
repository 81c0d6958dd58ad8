#include "persistence/user_data.h"
#include "support/temporary_folder.h"
#include "window/student_fixture.h"

#include <QMenu>
#include <QRegularExpression>
#include <QStandardPaths>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

class CourseMenuTest : public Student {
  protected:
    /// A course with the shipped flights and some of the shipped questions.
    void makeCourse(const std::string& name, const std::vector<std::string>& studyFiles) const {
        const fs::path shipped = TARNEL_APPLICATION_FOLDER "/default";
        fs::create_directories(folder.at / name / "study");
        for (const std::string& file : studyFiles)
            fs::copy_file(shipped / "study" / file, folder.at / name / "study" / file);
        fs::create_directory_symlink(shipped / "sessions", folder.at / name / "sessions");
    }
    /// The items of a menu as it opens.
    static QStringList opened(QMenu& menu) {
        emit menu.aboutToShow();
        QStringList texts;
        for (const QAction* action : menu.actions())
            texts += (action->isEnabled() ? "" : "-") +
                     action->text().remove(QRegularExpression(QStringLiteral("&(?!&)")));
        return texts;
    }
    QMenu& courses() { return find<QMenu>("mnuOwnCourses"); }
    QMenu& course(int index) { return *courses().actions().at(index)->menu(); }

    const TemporaryFolder folder;
};

TEST_F(CourseMenuTest, ListsCoursesWheneverItOpensAndStartsTheirExercises) {
    open(germanTable());
    EXPECT_EQ(opened(courses()).size(), 1);
    form->courses.setFolder(folder.path);
    EXPECT_THAT(opened(courses()).first().toStdString(), testing::StartsWith("-Noch keine in /"));
    makeCourse("Kurs 10", {"hsi.sty", "qdm.sty", "e-qdm.sty", "e-wind.sty"});
    makeCourse("Kurs 2 & Co.", {});
    makeCourse("Übung\t1", {"e-orientation.sty"});
    makeCourse("..hidden", {"hsi.sty"});
    makeCourse("Zeta" + std::string(200, 'x'), {"hsi.sty"});
    std::ofstream(folder.at / "file") << "-";
    ASSERT_EQ(mkfifo((folder.path + "/pipe").c_str(), 0600), 0);
    const QStringList names = opened(courses());
    EXPECT_EQ(names.mid(0, 3), QStringList({"Kurs 2 & Co.", "Kurs 10", "Übung 1"}));
    ASSERT_EQ(names.size(), 4);
    EXPECT_LT(names[3].size(), 100);
    EXPECT_EQ(opened(course(0)), QStringList("-Keine Übungen darin"));
    EXPECT_EQ(opened(course(1)),
              QStringList({"QDM Übungen", "HSI Position", "WIND Übungen (Holding)"}));
    EXPECT_EQ(opened(course(2)), QStringList("ORIENTIERUNG Übungen"));
    course(1).actions().at(0)->trigger();
    settle();
    EXPECT_TRUE(world.boxes.empty());
    EXPECT_THAT(form->UserControl11.c_SessionFileName.get(),
                testing::StartsWith(folder.path + "/Kurs 10/sessions/"));
    EXPECT_FALSE(courses().menuAction()->isEnabled());
    form->QAform1.activePanel()->cancelButton.click();
    settle();
    EXPECT_TRUE(courses().menuAction()->isEnabled());
    fs::remove_all(folder.at / "Kurs 10");
    EXPECT_EQ(opened(courses()).size(), 3);
}

// The folder of both programs, the one with and the one without a window.
TEST(UserData, LiesWhereTheDesktopSays) {
    const std::string before = qgetenv("XDG_DATA_HOME").toStdString();
    for (const char* home : {"", "/elsewhere"}) {
        qputenv("XDG_DATA_HOME", home);
        EXPECT_EQ(QString::fromStdString(userDataFolder()),
                  QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      "/tarnel");
    }
    qputenv("XDG_DATA_HOME", "from/here"); // no path from the root on
    EXPECT_THAT(userDataFolder(), testing::AllOf(testing::StartsWith("/"),
                                                 testing::EndsWith("/.local/share/tarnel")));
    qputenv("XDG_DATA_HOME", before.c_str());
}

} // namespace
} // namespace tarnel
