#pragma once

#include <QString>
#include <QStringList>

class QTextDocument;

namespace tarnel {

/// What the body of a page is made of.
struct PageBody {
    QString title; ///< its first heading
    QString html;
    QStringList links;    ///< to other pages, by their names
    QStringList pictures; ///< by the names of their files
};

/// Writes a document as HTML that says what things are and leaves their looks to a style sheet:
/// headings, paragraphs, lists, tables, pictures, links, strong, emphasis and code. A link without
/// a scheme names another page and gets ".html" behind it.
[[nodiscard]] PageBody writeBody(const QTextDocument& document);

} // namespace tarnel
