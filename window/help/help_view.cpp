#include "window/help/help_view.h"

#include "look/look.h"
#include "window/widgets/text_of.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

namespace tarnel {

namespace {

/// In points, as letters in pixels could not be zoomed.
QFont readingFont(int dotsPerInch) {
    constexpr double pixels = 14;
    constexpr double pointsPerInch = 72;
    QFont font = look::font(look::bodyType);
    font.setPointSizeF(pixels * pointsPerInch / dotsPerInch);
    return font;
}

} // namespace

HelpView::HelpView(const StringTable& table, QWidget* parent) : QTextBrowser(parent), texts(table) {
    constexpr double margin = 18;
    setObjectName(QStringLiteral("HelpPage"));
    setOpenExternalLinks(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(margin);
    resetZoom();
}

void HelpView::resetZoom() {
    setFont(readingFont(logicalDpiY()));
}

bool HelpView::findNext(const QString& words, bool backwards) {
    const QTextDocument::FindFlags flags =
        backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (words.isEmpty() || find(words, flags))
        return true;
    const QTextCursor before = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(words, flags))
        return true;
    setTextCursor(before);
    return false;
}

QVariant HelpView::loadResource(int type, const QUrl& name) {
    QVariant content = QTextBrowser::loadResource(type, name);
    if (type == QTextDocument::HtmlResource)
        page = QString::fromUtf8(content.toByteArray());
    if (type == QTextDocument::ImageResource && content.toByteArray().isEmpty())
        return frameFor(name);
    return content;
}

/// What the page says for the picture, else the name of its file.
QString HelpView::wordsFor(const QUrl& picture) const {
    QString name = picture.fileName();
    const QString before = QStringLiteral("<img src=\"%1\" alt=\"").arg(name);
    const qsizetype at = page.indexOf(before);
    if (at < 0)
        return name;
    const qsizetype from = at + before.size();
    return page.mid(from, page.indexOf('"', from) - from);
}

QPixmap HelpView::frameFor(const QUrl& picture) const {
    constexpr int inset = 12;
    const QString words = textOf(texts, Text::pictureNotThere).arg(wordsFor(picture));
    const QRect room = fontMetrics().boundingRect(words).adjusted(-inset, -inset, inset, inset);
    QPixmap frame(room.size());
    frame.fill(look::desktop);
    QPainter painter(&frame);
    painter.setFont(font());
    painter.setPen(look::secondaryInk);
    painter.drawRect(frame.rect().adjusted(0, 0, -1, -1));
    painter.drawText(frame.rect(), Qt::AlignCenter, words);
    return frame;
}

} // namespace tarnel
