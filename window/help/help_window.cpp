#include "window/help/help_window.h"

#include "look/look.h"
#include "window/help/help_view.h"
#include "window/widgets/desktop_opener.h"
#include "window/widgets/dressing.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/style_sheet.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

namespace tarnel {

namespace {

constexpr QSize usualSize{760, 640};
constexpr QSize smallestSize{560, 320};
constexpr int groupGap = 20;

void addKeys(QWidget& window, const QList<QKeySequence>& keys,
             const std::function<void()>& action) {
    for (const QKeySequence& key : keys)
        QObject::connect(new QShortcut(key, &window), &QShortcut::activated, &window, action);
}

} // namespace

HelpWindow::HelpWindow(const StringTable& table) : texts(table) {
    setObjectName(QStringLiteral("HelpWindow"));
    setMinimumSize(smallestSize);
    resize(usualSize);
    view = new HelpView(texts, this);
    auto* tools = new QWidget(this);
    auto* bar = new QHBoxLayout(tools);
    bar->setContentsMargins(look::gap, look::gap, look::gap, look::gap);
    bar->setSpacing(look::gap / 2);
    makeWay(*bar);
    bar->addSpacing(groupGap);
    makeSearch(*bar);
    bar->addSpacing(groupGap);
    makeSize(*bar);
    giveMnemonics(*tools);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(tools);
    column->addWidget(view, 1);
    addKeys(*this, {Qt::Key_Escape, QKeySequence::Close}, [this] { close(); });
    connect(view, &QTextBrowser::sourceChanged, this,
            [this] { setWindowTitle(view->documentTitle()); });
    followDesktop(*this, [this, tools] { // not the page's: its letters can be zoomed
        tools->setStyleSheet(sheetFor(desktopTextScale()));
        view->followDesktop();
    });
    view->setFocus();
}

QPushButton* HelpWindow::button(QBoxLayout& line, const char* name, Text caption, Text tip,
                                const QList<QKeySequence>& keys,
                                const std::function<void()>& action) {
    auto* made = new QPushButton(textOf(texts, caption), this);
    made->setObjectName(QString::fromLatin1(name));
    QString hint = textOf(texts, tip);
    if (!keys.isEmpty())
        hint += QStringLiteral(" (%1)").arg(keys.first().toString(QKeySequence::NativeText));
    made->setToolTip(hint);
    made->setAccessibleName(textOf(texts, tip));
    connect(made, &QPushButton::clicked, this, action);
    addKeys(*this, keys, action);
    line.addWidget(made);
    return made;
}

void HelpWindow::makeWay(QBoxLayout& line) {
    QPushButton* back =
        button(line, "HelpBack", Text::helpBack, Text::helpBackTip,
               {QKeySequence(Qt::ALT | Qt::Key_Left)}, [this] { view->backward(); });
    QPushButton* forward =
        button(line, "HelpForward", Text::helpForward, Text::helpForwardTip,
               {QKeySequence(Qt::ALT | Qt::Key_Right)}, [this] { view->forward(); });
    button(line, "HelpContents", Text::helpContents, Text::helpContentsTip,
           {QKeySequence(Qt::ALT | Qt::Key_Home)}, [this] { showContents(); });
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(view, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(view, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
}

void HelpWindow::makeSearch(QBoxLayout& line) {
    words = new QLineEdit(this);
    words->setObjectName(QStringLiteral("HelpSearch"));
    words->setPlaceholderText(textOf(texts, Text::helpSearch));
    words->setAccessibleName(textOf(texts, Text::helpSearch));
    words->setClearButtonEnabled(true);
    line.addWidget(words, 1);
    verdict = new QLabel(this);
    verdict->setObjectName(QStringLiteral("HelpVerdict"));
    verdict->setProperty("notice", true);
    line.addWidget(verdict);
    connect(words, &QLineEdit::returnPressed, this, [this] { search(false); });
    connect(words, &QLineEdit::textChanged, verdict, &QLabel::clear);
    addKeys(*this, {QKeySequence::Find}, [this] {
        words->setFocus(Qt::ShortcutFocusReason);
        words->selectAll();
    });
    addKeys(*this, {Qt::Key_F3}, [this] { search(false); });
    addKeys(*this, {Qt::SHIFT | Qt::Key_F3}, [this] { search(true); });
}

void HelpWindow::makeSize(QBoxLayout& line) {
    button(line, "HelpSmaller", Text::helpSmaller, Text::helpSmallerTip, {QKeySequence::ZoomOut},
           [this] { view->zoomOut(); });
    button(line, "HelpLarger", Text::helpLarger, Text::helpLargerTip, {QKeySequence::ZoomIn},
           [this] { view->zoomIn(); });
    addKeys(*this, {Qt::CTRL | Qt::Key_0}, [this] { view->resetZoom(); });
    button(line, "HelpBrowser", Text::helpBrowser, Text::helpBrowserTip, {},
           [this] { openInBrowser(); });
}

void HelpWindow::open(const QString& path) {
    const QUrl url = QUrl::fromLocalFile(path);
    if (view->source() != url)
        view->setSource(url);
    belongTo(QApplication::activeModalWidget());
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

double HelpWindow::zoom() const {
    return view->zoom();
}

void HelpWindow::setZoom(double times) {
    view->setZoom(times);
}

/// A dialog that keeps the user from all other windows lets through those that belong to it.
void HelpWindow::belongTo(QWidget* dialog) {
    create();
    QWindow* wanted = dialog ? dialog->windowHandle() : nullptr;
    if (windowHandle()->transientParent() == wanted)
        return;
    hide();
    windowHandle()->setTransientParent(wanted);
}

void HelpWindow::search(bool backwards) {
    const bool found = view->findNext(words->text(), backwards);
    verdict->setText(found ? QString() : textOf(texts, Text::helpNotFound));
}

void HelpWindow::showContents() {
    view->setSource(view->source().resolved(QUrl(QStringLiteral("index.html"))));
}

/// The verdict tells of a system without a browser.
void HelpWindow::openInBrowser() {
    const auto tell = [words = QPointer(verdict), told = textOf(texts, Text::helpNoBrowser)] {
        if (words)
            words->setText(told);
    };
    if (!openByDesktop(view->source().toLocalFile(), tell))
        tell();
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (onClose)
        onClose();
}

} // namespace tarnel
