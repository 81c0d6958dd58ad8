#include "window/help/help_view.h"

#include "look/look.h"
#include "window/widgets/dressing.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>

#include <algorithm>

namespace tarnel {

namespace {

/// A little larger than the desktop's. In points, as letters in pixels could not be zoomed.
QFont readingFont(int dotsPerInch) {
    constexpr double pixels = 14;
    constexpr double pointsPerInch = 72;
    QFont font = QApplication::font();
    font.setPointSizeF(pixels * desktopTextScale() * pointsPerInch / dotsPerInch);
    return font;
}

/// As in a browser, the colours of a page are those of `look::day` and its letters our own; here
/// they are the desktop's.
QByteArray asOnThisDesktop(QByteArray sheet) {
    using look::Colours;
    for (const auto colour :
         {&Colours::ink, &Colours::field, &Colours::accent, &Colours::desktop, &Colours::line})
        sheet.replace((look::day.*colour).name().toUpper().toLatin1(),
                      (look::colours().*colour).name().toLatin1());
    return sheet.replace("Liberation Sans", QApplication::font().family().toUtf8());
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

void HelpView::followDesktop() {
    resetZoom();
    if (!source().isEmpty())
        reload();
}

void HelpView::resetZoom() {
    setFont(readingFont(logicalDpiY()));
}

double HelpView::zoom() const {
    return font().pointSizeF() / readingFont(logicalDpiY()).pointSizeF();
}

void HelpView::setZoom(double times) {
    QFont zoomed = readingFont(logicalDpiY());
    zoomed.setPointSizeF(zoomed.pointSizeF() * std::clamp(times, 0.5, 4.0));
    setFont(zoomed);
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
    if (type == QTextDocument::StyleSheetResource)
        return asOnThisDesktop(content.toByteArray());
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
    frame.fill(look::colours().desktop);
    QPainter painter(&frame);
    painter.setFont(font());
    painter.setPen(look::colours().secondaryInk);
    painter.drawRect(frame.rect().adjusted(0, 0, -1, -1));
    painter.drawText(frame.rect(), Qt::AlignCenter, words);
    return frame;
}

} // namespace tarnel
