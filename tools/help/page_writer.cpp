#include "tools/help/page_writer.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

namespace tarnel {

namespace {

QString element(const QString& name, const QString& content) {
    return QStringLiteral("<%1>%2</%1>").arg(name, content);
}

class BodyWriter {
  public:
    PageBody write(const QTextDocument& document) {
        writeFrame(*document.rootFrame());
        return body;
    }

  private:
    void writeFrame(const QTextFrame& frame) {
        for (auto part = frame.begin(); !part.atEnd(); ++part) {
            if (auto* table = qobject_cast<QTextTable*>(part.currentFrame())) {
                leaveListsAbove(0);
                writeTable(*table);
            } else if (part.currentBlock().isValid()) {
                writeBlock(part.currentBlock());
            }
        }
        leaveListsAbove(0);
    }

    void writeBlock(const QTextBlock& block) {
        const int level = block.blockFormat().headingLevel();
        const QTextList* list = block.textList();
        if (!list)
            leaveListsAbove(0);
        if (level == 1 && body.title.isEmpty())
            body.title = block.text();
        if (level > 0)
            body.html += element(QStringLiteral("h%1").arg(level), textOf(block, true)) + '\n';
        else if (list)
            writeItem(block, *list);
        else if (!block.text().isEmpty())
            body.html += element(QStringLiteral("p"), textOf(block, false)) + '\n';
    }

    void writeItem(const QTextBlock& block, const QTextList& list) {
        const int depth = list.format().indent();
        leaveListsAbove(depth);
        const bool numbered = list.format().style() <= QTextListFormat::ListDecimal;
        while (lists.size() < depth) {
            lists.append(numbered ? QStringLiteral("ol") : QStringLiteral("ul"));
            body.html += QStringLiteral("<%1>\n").arg(lists.last());
        }
        body.html += element(QStringLiteral("li"), textOf(block, false)) + '\n';
    }

    void leaveListsAbove(int depth) {
        while (lists.size() > depth)
            body.html += QStringLiteral("</%1>\n").arg(lists.takeLast());
    }

    void writeTable(const QTextTable& table) {
        body.html += QStringLiteral("<table>\n");
        for (int row = 0; row < table.rows(); ++row) {
            const bool heads = row == 0; // so it is in Markdown
            QString cells;
            for (int column = 0; column < table.columns(); ++column)
                cells +=
                    element(heads ? QStringLiteral("th") : QStringLiteral("td"),
                            textOf(table.cellAt(row, column).firstCursorPosition().block(), heads));
            body.html += element(QStringLiteral("tr"), cells) + '\n';
        }
        body.html += QStringLiteral("</table>\n");
    }

    /// `heads` are bold as a whole.
    QString textOf(const QTextBlock& block, bool heads) {
        QString html;
        for (auto part = block.begin(); !part.atEnd(); ++part)
            html += fragment(part.fragment(), heads);
        return html;
    }

    QString picture(const QTextImageFormat& format) {
        body.pictures.append(format.name());
        return QStringLiteral("<img src=\"%1\" alt=\"%2\">")
            .arg(format.name().toHtmlEscaped(),
                 format.stringProperty(QTextFormat::ImageAltText).toHtmlEscaped());
    }

    QString fragment(const QTextFragment& part, bool heads) {
        const QTextCharFormat format = part.charFormat();
        if (format.isImageFormat())
            return picture(format.toImageFormat());
        QString html =
            part.text().toHtmlEscaped().replace(QChar::LineSeparator, QStringLiteral("<br>"));
        if (format.fontFixedPitch())
            html = element(QStringLiteral("code"), html);
        if (format.fontItalic())
            html = element(QStringLiteral("em"), html);
        if (format.fontWeight() >= QFont::Bold && !heads)
            html = element(QStringLiteral("strong"), html);
        return format.isAnchor() ? linked(format.anchorHref(), html) : html;
    }

    QString linked(const QString& target, const QString& html) {
        const bool page = QUrl(target).isRelative();
        if (page)
            body.links.append(target);
        return QStringLiteral("<a href=\"%1\">%2</a>")
            .arg((page ? target + QStringLiteral(".html") : target).toHtmlEscaped(), html);
    }

    PageBody body;
    QStringList lists; ///< that are open, the innermost last
};

} // namespace

PageBody writeBody(const QTextDocument& document) {
    return BodyWriter().write(document);
}

} // namespace tarnel
