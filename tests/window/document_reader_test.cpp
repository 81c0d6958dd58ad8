#include "readers/pdf_reader.h"
#include "window/frame/document_reader.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QUrl>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace tarnel {
namespace {

using testing::ElementsAre;

/// Stands in for the desktop's own opener: keeps what it is to open as its source.
class Opener : public QTextBrowser {
  public:
    Opener() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "setSource"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
};

/// A desktop of its own, whose programs write down their words.
class DesktopTest : public testing::Test {
  protected:
    using Words = std::vector<std::string>;

    DesktopTest() {
        const QByteArray at = folder.path().toUtf8();
        for (const auto& [name, value] : std::map<const char*, QByteArray>{
                 {"PATH", at + "/bin"},
                 {"XDG_CONFIG_HOME", at + "/config"},
                 {"XDG_CONFIG_DIRS", at + "/xdg"},
                 {"XDG_DATA_HOME", at + "/data"},
                 {"XDG_DATA_DIRS", "not/from/the/root:" + at + "/usr/share"},
                 {"XDG_CURRENT_DESKTOP", "Some:KDE"}}) {
            before[name] = qgetenv(name);
            qputenv(name, value);
        }
    }
    ~DesktopTest() override {
        for (const auto& [name, value] : before)
            qputenv(name, value);
    }
    void put(const QString& name, const QByteArray& bytes) {
        const QString path = folder.filePath(name);
        QDir().mkpath(path.section('/', 0, -2));
        QFile out(path);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(bytes);
    }
    void install(const QString& program) {
        const QByteArray told = record.toUtf8();
        put("bin/" + program, "#!/bin/sh\n{ printf '%s\\0' '" + program.toUtf8() +
                                  "' \"$@\"; } >'" + told + ".new'\n/bin/mv '" + told + ".new' '" +
                                  told + "'\n");
        QFile::setPermissions(folder.filePath("bin/" + program),
                              QFile::ReadOwner | QFile::ExeOwner);
    }
    void entry(const QString& name, const QByteArray& lines) {
        put(name, "[Desktop Entry]\nType=Application\nName=A\n" + lines + "\n");
    }
    /// The program that came, and its words.
    Words opened(int page) {
        QFile::remove(record);
        if (!openInReader(document, page, [] {}) ||
            !QTest::qWaitFor([&] { return QFile::exists(record); }))
            return {};
        QFile told(record);
        const QByteArray words = told.open(QIODevice::ReadOnly) ? told.readAll() : QByteArray();
        Words all;
        for (const QByteArray& word : words.split('\0'))
            all.push_back(word.toStdString());
        all.pop_back(); // behind the last end
        return all;
    }

    QTemporaryDir folder;
    QString record = folder.filePath(QStringLiteral("told"));
    QString document = folder.filePath(QStringLiteral("-x 'Ü' \"5%\" $HOME;#1[1].pdf"));
    std::string file = document.toStdString();
    std::string url = "file://" + folder.path().toStdString() +
                      "/-x%20%27%C3%9C%27%20%225%25%22%20%24HOME%3B%231%5B1%5D.pdf";
    std::map<const char*, QByteArray> before;
};

TEST_F(DesktopTest, EachUsualReaderOpensAnyNameAtItsPageInTheOrderOfTheSearch) {
    const Words index{"--page-index=26", file};
    const Words browser{url + "#page=26"};
    const std::vector<std::pair<const char*, Words>> readers{{"chromium", browser},
                                                             {"firefox", browser},
                                                             {"xpdf", {file, "26"}},
                                                             {"mupdf", {file, "26"}},
                                                             {"zathura", {"-P", "26", file}},
                                                             {"qpdfview", {file + "#26"}},
                                                             {"xreader", index},
                                                             {"atril", index},
                                                             {"papers", index},
                                                             {"evince", index},
                                                             {"okular", {"-p", "26", file}}};
    for (const auto& [program, words] : readers) { // each goes before those installed so far
        install(QString::fromLatin1(program));
        Words expected{program};
        expected.insert(expected.end(), words.begin(), words.end());
        EXPECT_EQ(opened(26), expected);
        EXPECT_THAT(opened(0), ElementsAre(program, words == browser ? url : file));
    }
}

TEST_F(DesktopTest, TheUsersDefaultGoesBeforeAll) {
    for (const char* program : {"okular", "evince", "viewer"})
        install(QString::fromLatin1(program));
    entry("usr/share/applications/some/viewer.desktop", "Exec=viewer --new %U");
    entry("usr/share/applications/evince.desktop", "Exec=evince -f %U # %c");
    entry("usr/share/applications/gone.desktop", "Exec=not-installed %f");
    const auto prefer = [this](const QString& list, const QByteArray& entries) {
        put(list, "[Added Associations]\napplication/pdf=gone.desktop;\n\n[Default Applications]\n"
                  "image/png=gone.desktop\napplication/pdf=" +
                      entries + "\n");
    };
    prefer("usr/share/applications/kde-mimeapps.list", "some-viewer.desktop");
    EXPECT_THAT(opened(26), ElementsAre("viewer", "--new", url)); // it knows no pages
    prefer("config/mimeapps.list", "gone.desktop;evince.desktop;some-viewer.desktop");
    EXPECT_THAT(opened(26), ElementsAre("evince", "-f", "--page-index=26", file, "#", "A"));
    EXPECT_THAT(opened(0), ElementsAre("evince", "-f", url, "#", "A"));
    entry("data/applications/evince.desktop", "Hidden=true\nExec=evince %U");
    EXPECT_EQ(opened(0).front(), "viewer");
    prefer("config/mimeapps.list", "gone.desktop");
    prefer("usr/share/applications/kde-mimeapps.list", "../../../bin/viewer");
    EXPECT_EQ(opened(0).front(), "okular");
}

TEST_F(DesktopTest, WithoutAReaderTheDesktopOpensTheDocument) {
    Opener opener;
    install(QStringLiteral("xpdf"));
    QFile::setPermissions(folder.filePath("bin/xpdf"), QFile::ReadOwner);
    EXPECT_TRUE(openInReader(document, 26, [] {}));
    EXPECT_EQ(opener.source(), QUrl::fromLocalFile(document));

    install(QStringLiteral("xdg-open"));
    EXPECT_THAT(opened(26), ElementsAre("xdg-open", file));
    put("bin/xdg-open", "#!/bin/sh\nexit 3\n"); // as it tells that it has found no program
    bool told = false;
    EXPECT_TRUE(openInReader(document, 26, [&] { told = true; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return told; }));
}

} // namespace
} // namespace tarnel
