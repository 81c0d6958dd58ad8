#include "tools/help/help_builder.h"

#include "flights/plan_error.h"
#include "persistence/save_file.h"
#include "tools/help/page_writer.h"
#include "tools/help/panel_pictures.h"
#include "tools/output/output_file.h"

#include <QDir>
#include <QFile>
#include <QTextDocument>

namespace tarnel {

namespace {

constexpr const char* languages[] = {"de", "en"};
constexpr auto contents = "index";

class HelpBuilder {
  public:
    HelpBuilder(const QString& sourceFolder, const QString& outFolder)
        : sources(sourceFolder), out(outFolder) {}

    void build() {
        for (const QString& file : sources.entryList({QStringLiteral("*.md")}, QDir::Files))
            checkLanguages(file);
        for (const char* language : languages)
            buildLanguage(QString::fromLatin1(language));
    }

  private:
    [[noreturn]] void fail(const QString& file, qsizetype line, const QString& expected) const {
        throw PlanError(sources.filePath(file).toStdString(), static_cast<int>(line),
                        expected.toStdString());
    }

    static QString fileOf(const QString& page, const QString& language) {
        return QStringLiteral("%1.%2.md").arg(page, language);
    }

    void checkLanguages(const QString& file) const {
        const QString page = file.section('.', 0, 0);
        bool known = false;
        for (const char* language : languages) {
            const QString twin = fileOf(page, QString::fromLatin1(language));
            known = known || twin == file;
            if (!sources.exists(twin))
                fail(file, 1, QStringLiteral("the same page in ") + twin);
        }
        if (!known)
            fail(file, 1, QStringLiteral("the name NAME.de.md or NAME.en.md"));
    }

    QString read(const QString& file) const {
        QFile source(sources.filePath(file));
        if (!source.open(QIODevice::ReadOnly))
            throw OutputError(source.fileName().toStdString(), source.errorString().toStdString());
        return QString::fromUtf8(source.readAll());
    }

    /// Each page with its title.
    PageBody bodyOf(const QString& file) const {
        const QString text = read(file);
        QTextDocument document;
        document.setMarkdown(text, QTextDocument::MarkdownDialectGitHub);
        PageBody body = writeBody(document);
        if (body.title.isEmpty())
            fail(file, 1, QStringLiteral("\"# \" and the title of the page"));
        const QString language = file.section('.', 1, 1);
        for (const QString& link : body.links)
            if (!sources.exists(fileOf(link, language)))
                fail(file, lineOf(text, link),
                     QStringLiteral("the name of a page, not \"%1\"").arg(link));
        for (const QString& picture : body.pictures)
            if (!out.exists(language + '/' + picture))
                fail(file, lineOf(text, picture),
                     QStringLiteral("the name of a picture, not \"%1\"").arg(picture));
        return body;
    }

    static qsizetype lineOf(const QString& text, const QString& target) {
        return text.left(text.indexOf(QStringLiteral("](%1)").arg(target))).count('\n') + 1;
    }

    void buildLanguage(const QString& language) const {
        if (!out.mkpath(language))
            throw OutputError(out.filePath(language).toStdString(), "the folder can't be made");
        paintPanels(language == QLatin1String("de") ? germanTable() : englishTable(),
                    out.filePath(language));
        const QString contentsTitle = bodyOf(fileOf(contents, language)).title;
        for (const QString& file : sources.entryList({fileOf("*", language)}, QDir::Files)) {
            const QString page = file.section('.', 0, 0);
            const PageBody body = bodyOf(file);
            const QString back = page == QLatin1String(contents)
                                     ? QString()
                                     : QStringLiteral("<p><a href=\"%1.html\">%2</a></p>\n")
                                           .arg(QLatin1String(contents), contentsTitle);
            const QString html =
                QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\">\n<head>\n"
                               "<meta charset=\"utf-8\">\n"
                               "<meta name=\"viewport\" content=\"width=device-width\">\n"
                               "<link rel=\"stylesheet\" type=\"text/css\" href=\"../help.css\">\n"
                               "<title>%2</title>\n</head>\n<body>\n%3%4</body>\n</html>\n")
                    .arg(language, body.title.toHtmlEscaped(), back, body.html);
            saveFileBytes(out.filePath(language + '/' + page + ".html").toStdString(),
                          html.toStdString());
        }
    }

    QDir sources;
    QDir out;
};

} // namespace

void buildHelp(const QString& sources, const QString& out) {
    HelpBuilder(sources, out).build();
}

} // namespace tarnel
