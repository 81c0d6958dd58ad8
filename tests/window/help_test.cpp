#include "window/frame/pdf_form_window.h"
#include "window/frame/qt_outside_world.h"
#include "window/help/help_view.h"
#include "window/help/help_window.h"
#include "window/student_fixture.h"

#include <QAction>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QWindow>

namespace tarnel {
namespace {

class HelpStudent : public Student {
  protected:
    void openInFront() {
        open();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    std::string pageOf(QWidget* part) {
        if (part)
            part->setFocus();
        else if (window->focusWidget())
            window->focusWidget()->clearFocus();
        QTest::keyClick(window.get(), Qt::Key_F1);
        const std::string page = world.opened.empty() ? "" : world.opened.back();
        return page.substr(0, page.rfind(".html as help"));
    }
};

TEST_F(HelpStudent, F1OpensThePageOfWhatHasTheKeyboard) {
    openInFront();
    EXPECT_EQ(pageOf(nullptr), "Hilfe/en/index");
    const std::pair<const char*, const char*> parts[] = {
        {"Command6", "flight"},          {"CommentStart", "comments"},
        {"HeadingUp", "chart"},          {"Combo2", "instruments"},
        {"StopwatchStart", "stopwatch"}, {"UserControl13_0", "instruments"}};
    for (const auto& [part, page] : parts)
        EXPECT_EQ(pageOf(&find<QWidget>(part)), std::string("Hilfe/en/") + page) << part;
    for (const auto& [face, page] : {std::pair("DMEControlFace1", "radios"),
                                     {"APControlFace1", "flight"},
                                     {"NAVControlFace2", "radios"}}) {
        for (auto* part : find<QWidget>(face).findChildren<QWidget*>()) {
            if (part->focusPolicy() == Qt::NoFocus)
                continue;
            EXPECT_EQ(pageOf(part), std::string("Hilfe/en/") + page) << face;
        }
    }
    for (const auto& [tab, page] : {std::pair("PageChart", "chart"),
                                    {"PageReplay", "replay"},
                                    {"PageWind", "chart"},
                                    {"PageStations", "radios"}}) {
        turnTo(tab);
        EXPECT_EQ(pageOf(&find<QTabBar>("Pages")), std::string("Hilfe/en/") + page) << tab;
    }
    EXPECT_EQ(pageOf(&findShown<QWidget>("Vor1On")), "Hilfe/en/radios");
    find<QAction>("qdm").trigger();
    settle();
    EXPECT_EQ(pageOf(nullptr), "Hilfe/en/exercises");
    form->exerciseMenu.progress.onClick();
    settle();
    EXPECT_EQ(pageOf(nullptr), "Hilfe/en/progress");
    EXPECT_TRUE(world.boxes.empty());
}

/// The help as it comes from the build, without a mouse.
class HelpReader : public testing::Test {
  protected:
    void SetUp() override {
        help.open(file("instruments"));
        ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    }
    static QString file(const QString& page) {
        return QStringLiteral(TARNEL_APPLICATION_FOLDER "/Hilfe/en/%1.html").arg(page);
    }
    QString page() { return view.source().fileName().section('.', 0, 0); }
    void press(int key, Qt::KeyboardModifiers with = {}) {
        QTest::keyClick(help.focusWidget(), static_cast<Qt::Key>(key), with);
    }

    HelpWindow help{englishTable()};
    HelpView& view = *help.findChild<HelpView*>();
    QLineEdit& words = *help.findChild<QLineEdit*>();
    QLabel& verdict = *help.findChild<QLabel*>(QStringLiteral("HelpVerdict"));
};

TEST_F(HelpReader, GoesByKeysFromPageToPageAndBackToItsPlace) {
    EXPECT_EQ(help.windowTitle(), "Instruments");
    press(Qt::Key_End);
    const int place = view.verticalScrollBar()->value();
    EXPECT_GT(place, 0);
    help.open(file("instruments"));
    EXPECT_EQ(view.verticalScrollBar()->value(), place);
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(page(), "index");
    press(Qt::Key_Tab); // to the first link
    press(Qt::Key_Return);
    EXPECT_EQ(page(), "flight");
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(page(), "instruments");
    EXPECT_EQ(view.verticalScrollBar()->value(), place);
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(page(), "index");
    press(Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(HelpReader, FindsWordsRoundThePageAndZooms) {
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(words.hasFocus());
    QTest::keyClicks(&words, QStringLiteral("localizer"));
    press(Qt::Key_Return);
    const int first = view.textCursor().position();
    EXPECT_EQ(view.textCursor().selectedText().toLower(), "localizer");
    press(Qt::Key_F3);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(view.textCursor().position(), first);
    QTest::keyClicks(&words, QStringLiteral("xyz"));
    press(Qt::Key_Return);
    EXPECT_EQ(verdict.text(), "Not found");
    QTest::keyClicks(&words, QStringLiteral("z"));
    EXPECT_EQ(verdict.text(), "");
    const double letters = view.document()->size().height();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view.document()->size().height(), letters);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(view.document()->size().height(), letters);
}

TEST_F(HelpReader, LeavesAFrameWithItsWordsForAPictureThatIsMissing) {
    const QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("a.html"));
    QFile html(other);
    ASSERT_TRUE(html.open(QIODevice::WriteOnly));
    html.write("<p><img src=\"no.png\" alt=\"The RMI, as it is flown\"></p>");
    html.close();
    help.open(other);
    const auto frame =
        view.document()->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("no.png")));
    EXPECT_GT(frame.value<QPixmap>().width(),
              view.fontMetrics().horizontalAdvance(QStringLiteral("The RMI, as it is flown")));
}

TEST(HelpInTheWorld, IsOneWindowThatKeepsItsPlace) {
    const QTemporaryDir folder;
    const std::string settings = folder.filePath(QStringLiteral("settings.ini")).toStdString();
    const auto windows = [] {
        QList<QWidget*> all;
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (qobject_cast<HelpWindow*>(widget))
                all.append(widget);
        return all;
    };
    const QRect place(40, 30, 600, 420);
    for (int start = 0; start < 2; ++start) {
        QtOutsideWorld world(englishTable(), settings);
        for (const char* page : {"/Hilfe/en/radios.html", "/Hilfe/en/keys.html"})
            world.showHelp(std::string(TARNEL_APPLICATION_FOLDER) + page);
        ASSERT_EQ(windows().size(), 1);
        auto& help = static_cast<HelpWindow&>(*windows().front());
        EXPECT_EQ(help.geometry() == place, start == 1);
        EXPECT_NEAR(help.zoom(), start == 1 ? 1.5 : 1, 1e-6);
        help.setGeometry(place);
        help.setZoom(1.5);
    }
    EXPECT_TRUE(windows().empty());
}

TEST_F(Student, TheFormsOfTheDocumentsStayAboveOnlyWhileTheyAreToldTo) {
    open();
    form->documents.bookForm.shown.set(1);
    find<QAction>("frmJeppPDF").trigger();
    settle();
    auto& charts = find<PdfFormWindow>("frmJeppPDF");
    auto& book = find<PdfFormWindow>("frmBuchPDF");
    EXPECT_EQ(charts.windowHandle()->transientParent(), nullptr);
    QTest::mouseClick(charts.findChild<QAbstractButton*>(QStringLiteral("Check1")), Qt::LeftButton,
                      {}, {8, 8});
    settle();
    EXPECT_EQ(charts.windowHandle()->transientParent(), window->windowHandle());
    EXPECT_EQ(book.windowHandle()->transientParent(), nullptr);
    EXPECT_TRUE(charts.isVisible() && book.isVisible());
    auto* list = charts.findChild<QTreeWidget*>();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_THAT(world.boxes.front(), testing::HasSubstr("NOT FOR NAVIGATIONAL"));
    EXPECT_THAT(world.boxes.back() + (world.opened.empty() ? "" : world.opened.back()),
                testing::HasSubstr("eddr111app[1].pdf"));
    QTest::keyClick(&charts, Qt::Key_Escape);
    settle();
    EXPECT_EQ(form->documents.chartForm.shown.value(), 0);
    EXPECT_TRUE(!charts.isVisible() && book.isVisible());
}

} // namespace
} // namespace tarnel
