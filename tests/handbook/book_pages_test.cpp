#include "window/student_fixture.h"
#include "window/widgets/plain_caption.h"

#include <QAction>
#include <QMenu>
#include <QProcess>
#include <QXmlStreamReader>

#include <map>

namespace tarnel {
namespace {

/// What is set large on each page of a book, its headings, by the page's number.
std::map<int, QString> headingsOf(const QString& book) {
    constexpr double large = 17; // points from the top of a letter to its bottom
    std::map<int, QString> headings;
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {"-bbox", book, "-"});
    reader.waitForFinished(60000);
    QXmlStreamReader words(reader.readAllStandardOutput());
    int page = 0;
    while (!words.atEnd()) {
        if (words.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes at = words.attributes();
        if (words.name() == QLatin1String("page"))
            ++page;
        else if (words.name() == QLatin1String("word") &&
                 at.value("yMax").toDouble() - at.value("yMin").toDouble() > large)
            headings[page] += words.readElementText() + ' ';
    }
    return headings;
}

class Handbook : public Student {
  protected:
    const QString bookFolder = QString::fromStdString(applicationFolder) + "/Buch/";

    /// The items of the menus that open the book somewhere else than at its start.
    std::vector<QAction*> bookItems() {
        std::vector<QAction*> items;
        for (auto* action : window->findChildren<QAction*>()) {
            const QString name = action->objectName();
            if (!action->menu() &&
                (name.startsWith("pdf") || name == "bookAbbreviations" || name == "bookIndex"))
                items.push_back(action);
        }
        return items;
    }
};

TEST_F(Handbook, EachItemOfTheMenuOpensItsSection) {
    for (const StringTable* texts : {&germanTable(), &englishTable()}) {
        open(*texts);
        std::map<int, QString> headings;
        const std::vector<QAction*> items = bookItems();
        ASSERT_EQ(items.size(), 65U);
        for (QAction* item : items) {
            item->trigger();
            if (world.opened.empty())
                GTEST_SKIP() << "handbook/make has not been called";
            const QStringList opened = QString::fromStdString(world.opened.back()).split(' ');
            if (headings.empty())
                headings = headingsOf(bookFolder + opened.front());
            const int page = opened.back().toInt();
            EXPECT_TRUE(headings[page].contains(plainCaption(item->text()) + ' '))
                << item->text().toStdString() << " is not on page " << page << " of "
                << opened.front().toStdString() << ", but " << headings[page].toStdString();
        }
    }
}

} // namespace
} // namespace tarnel
