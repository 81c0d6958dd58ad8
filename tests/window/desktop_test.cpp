#include "window/frame/command_line.h"
#include "window/frame/qt_outside_world.h"
#include "window/frame/window_place.h"
#include "window/student_fixture.h"

#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace tarnel {
namespace {

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class MenuTest : public Student {
  protected:
    QAction& item(const char* name) {
        auto* found = window->findChild<QAction*>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no item called ") + name);
        return *found;
    }
    bool opens(const char* name) { return find<QMenu>(name).menuAction()->isEnabled(); }
};

TEST_F(MenuTest, FilesAndExercisesRestInFlightAndInAnExercise) {
    open();
    click("Command6");
    for (const char* name :
         {"mnuNewSession", "mnuSaveChartAs", "qdm", "adf10", "intro2", "resstats"})
        EXPECT_FALSE(item(name).isEnabled()) << name;
    for (const char* name : {"adfrmi", "adfvorprac", "vorprac", "intromain"})
        EXPECT_FALSE(opens(name)) << name;
    EXPECT_TRUE(opens("mnufile") &&
                opens("mnuOption")); // the flight pauses for what they have left
    EXPECT_TRUE(form->flight.flies());
    click("Command6");
    EXPECT_TRUE(opens("vorprac"));
    form->stationPage.edit.set(1);
    item("qdr").trigger();
    settle();
    EXPECT_EQ(form->UserControl11.c_mapedit, 0);
    EXPECT_FALSE(item("mnuLoadSession").isEnabled());
    EXPECT_FALSE(opens("mnuOption"));
}

class DropTest : public Student {
  protected:
    bool drop(const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        event.ignore();
        QApplication::sendEvent(window.get(), &event);
        QTest::qWait(1);
        settle();
        return event.isAccepted();
    }
};

TEST_F(DropTest, ADroppedFileOpensOrSaysWhyNot) {
    open();
    const QTemporaryDir folder;
    const QString flight = folder.filePath(QStringLiteral("Flug über Köln.ts"));
    write(flight, QByteArray::fromStdString(form->UserControl11.sessionBytes()));
    EXPECT_FALSE(drop({QUrl(QStringLiteral("https://example.org/a.ts"))}));
    EXPECT_TRUE(drop({QUrl::fromLocalFile(flight)}));
    EXPECT_EQ(find<QLabel>("StatusPanel1").text(), QStringLiteral("Flug über Köln.ts"));
    EXPECT_EQ(find<QLabel>("StatusPanel1").toolTip(), flight);
    const QByteArray latin1 = folder.path().toUtf8() + "/Fl\xFCge \\ 1.ts";
    std::filesystem::rename(flight.toStdString(), latin1.toStdString());
    EXPECT_TRUE(drop({QUrl::fromEncoded("file://" + latin1.toPercentEncoding("/"))}));
    EXPECT_EQ(form->UserControl11.c_SessionFileName.get(), latin1.toStdString());
    EXPECT_TRUE(world.boxes.empty());
    EXPECT_TRUE(drop({QUrl::fromLocalFile(folder.filePath(QStringLiteral("gone.map")))}));
    EXPECT_THAT(world.boxes, testing::ElementsAre(testing::HasSubstr("gone.map")));
}

TEST(WindowPlace, OutlivesTheProgram) {
    const QTemporaryDir folder;
    const std::string file = folder.filePath(QStringLiteral("settings.ini")).toStdString();
    QWidget window;
    {
        FileSettings settings(file);
        EXPECT_FALSE(takePlace(window, settings, "place"));
        QWidget before;
        before.setGeometry(60, 50, 500, 400);
        keepPlace(before, settings, "place");
    }
    const FileSettings settings(file);
    EXPECT_TRUE(takePlace(window, settings, "place"));
    EXPECT_EQ(window.geometry(), QRect(60, 50, 500, 400));
}

/// The window with boxes and dialogs of its own.
class DialogTest : public MenuTest {
  protected:
    void openWithDialogs() {
        window.reset();
        form.reset();
        outside = std::make_unique<QtOutsideWorld>(
            englishTable(), folder.filePath(QStringLiteral("settings.ini")).toStdString());
        form = std::make_unique<Form1>(englishTable(), *outside, TARNEL_APPLICATION_FOLDER);
        window = std::make_unique<MainWindow>(*form);
        outside->setParent(window.get());
        window->show();
        settle();
    }
    ~DialogTest() override {
        window.reset();
        form.reset();
    }
    /// Triggers an item and answers the file dialog that comes with `answer`. False if none came.
    bool trigger(const char* name, const std::function<void(QFileDialog&)>& answer) {
        bool came = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            came = true;
            answer(*dialog);
        });
        item(name).trigger();
        settle();
        return came;
    }

    QTemporaryDir folder;
    std::unique_ptr<QtOutsideWorld> outside;
};

TEST_F(DialogTest, TheShippedChartIsSavedUnderAnotherNameOnly) {
    openWithDialogs();
    const QByteArray shipped = read(QStringLiteral(TARNEL_APPLICATION_FOLDER "/default.map"));
    const QString mine = folder.filePath(QStringLiteral("mine"));
    EXPECT_TRUE(trigger("mnuSaveChart", [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_NE(dialog.directory(), QDir(QStringLiteral(TARNEL_APPLICATION_FOLDER)));
        dialog.selectFile(mine);
        static_cast<QDialog&>(dialog).accept();
    }));
    EXPECT_EQ(form->UserControl11.c_ChartFileName.get(), mine.toStdString() + ".map");
    EXPECT_TRUE(QFile::exists(mine + QStringLiteral(".map")));
    EXPECT_EQ(read(QStringLiteral(TARNEL_APPLICATION_FOLDER "/default.map")), shipped);
    form->startButton.click();
    fly(8);
    form->startButton.click();
    fly(0);
    const QString flight = folder.filePath(QStringLiteral("flight.v2"));
    EXPECT_TRUE(trigger("mnuExportFlight", [&](QFileDialog& dialog) {
        dialog.selectFile(flight + QStringLiteral(".gpx"));
        dialog.selectNameFilter(dialog.nameFilters().at(1));
        emit dialog.filterSelected(dialog.nameFilters().at(1));
        static_cast<QDialog&>(dialog).accept();
    }));
    EXPECT_TRUE(read(flight + QStringLiteral(".kml")).contains("gx:Track"));
    EXPECT_FALSE(trigger("mnuSaveChart", [](QFileDialog& dialog) { dialog.reject(); }));
    EXPECT_TRUE(trigger("mnuSaveSession", [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog.reject();
    }));
}

// The next start knows the folder and the files of the last one.
TEST_F(DialogTest, FilesAndFolderOutliveTheProgram) {
    const std::string own = folder.path().toStdString() + "/a & b.map";
    openWithDialogs();
    for (const int number : {0, 1, 2, 3, 4, 5, 6, 7, 8, 4})
        form->recentFiles.note("/gone/" + std::to_string(number) + ".ts");
    EXPECT_TRUE(trigger("mnuSaveChart", [&](QFileDialog& dialog) {
        dialog.selectFile(QString::fromStdString(own));
        static_cast<QDialog&>(dialog).accept();
    }));
    openWithDialogs();
    auto& recent = find<QMenu>("mnuRecent");
    emit recent.aboutToShow();
    ASSERT_EQ(recent.actions().size(), 8 + 2);
    ASSERT_THAT(recent.actions().at(0)->text().toStdString(),
                testing::StartsWith("&1  a && b.map"));
    EXPECT_THAT(recent.actions().at(7)->text().toStdString(), testing::HasSubstr("2.ts - /gone"));
    recent.actions().at(0)->trigger();
    EXPECT_EQ(form->UserControl11.c_ChartFileName.get(), own);
    EXPECT_TRUE(trigger("mnuLoadSession", [&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        EXPECT_EQ(dialog.nameFilters().size(), 2);
        dialog.reject();
    }));
    recent.actions().constLast()->trigger();
    EXPECT_TRUE(form->recentFiles.paths().empty());
}

struct CommandLineCase {
    std::vector<const char*> words;
    std::optional<int> ended;
    const char* answer; ///< a part of it
};

TEST(CommandLine, IsAnsweredOrOpensOneFile) {
    for (const auto& [words, ended, answer] :
         std::vector<CommandLineCase>{{{}, {}, ""},
                                      {{"--platform", "offscreen", "-style", "fusion"}, {}, ""},
                                      {{"--help", "--nonsense"}, 0, "--new-instance"},
                                      {{"-v"}, 0, "Tarnel "},
                                      {{"--new"}, 2, "Unbekannte Option: new"},
                                      {{"a.ts", "b.ts"}, 2, "b.ts"},
                                      {{"--platform"}, 2, "platform"}}) {
        std::vector<const char*> all = {"/usr/bin/tarnel"};
        all.insert(all.end(), words.begin(), words.end());
        const CommandLine line = readCommandLine(static_cast<int>(all.size()),
                                                 const_cast<char**>(all.data()), germanTable());
        EXPECT_EQ(line.ended, ended) << answer;
        EXPECT_THAT(line.answer, testing::HasSubstr(answer));
        EXPECT_FALSE(line.newInstance);
    }
    const char* words[] = {"tarnel", "--new-instance", "--", "-Fl\xFCge.ts"};
    const CommandLine line = readCommandLine(4, const_cast<char**>(words), englishTable());
    EXPECT_TRUE(line.newInstance && !line.ended);
    EXPECT_THAT(line.file,
                testing::AllOf(testing::StartsWith("/"), testing::EndsWith("/-Fl\xFCge.ts")));
}

} // namespace
} // namespace tarnel
