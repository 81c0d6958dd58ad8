#include "window/frame/pdf_form_window.h"

#include "look/look.h"
#include "window/widgets/help_page.h"
#include "window/widgets/mnemonics.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace tarnel {

namespace {

constexpr QSize usualSize{440, 420};
constexpr int numberOfLine = Qt::UserRole;

} // namespace

PdfFormWindow::PdfFormWindow(PdfForm& pdfForm, BoxDesk& boxDesk, FormBinding& binding,
                             QWidget& mainWindow)
    : QWidget(&mainWindow, Qt::Window), form(pdfForm), boxes(boxDesk), main(mainWindow) {
    setObjectName(QString::fromLatin1(form.name));
    setWindowTitle(textOf(boxes.texts, form.title));
    resize(usualSize);
    list = new QTreeWidget(this);
    list->setAccessibleName(windowTitle());
    connect(list, &QTreeWidget::itemActivated, this, [this] { openCurrent(); });
    fill();
    auto* check = new QCheckBox(this);
    binding.bind(form.Check1, *check);
    auto* open = new QPushButton(textOf(boxes.texts, Text::openDocument), this);
    open->setObjectName(QStringLiteral("OpenDocument"));
    connect(open, &QPushButton::clicked, this, [this] { openCurrent(); });
    auto* foot = new QHBoxLayout;
    foot->addWidget(check);
    foot->addStretch();
    foot->addWidget(open);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(look::gap, look::gap, look::gap, look::gap);
    column->addWidget(list, 1);
    column->addLayout(foot);
    setHelpPage(*this, "index");
    giveMnemonics(*this);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

/// Lines within others stand below them; a second column has the pages, if there are any.
void PdfFormWindow::fill() {
    const std::vector<PdfForm::Line> lines = form.lines();
    const bool paged = std::ranges::any_of(lines, [](const auto& line) { return line.page > 0; });
    list->setHeaderHidden(true);
    list->setRootIsDecorated(paged);
    list->setColumnCount(paged ? 2 : 1);
    QTreeWidgetItem* head = nullptr;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto* item = lines[i].within ? new QTreeWidgetItem(head) : new QTreeWidgetItem(list);
        item->setText(0, QString::fromStdString(lines[i].caption));
        item->setToolTip(0, item->text(0));
        item->setData(0, numberOfLine, static_cast<int>(i));
        if (lines[i].page > 0) {
            item->setText(1, QString::number(lines[i].page));
            item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
        if (lines[i].heads)
            head = item;
    }
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    if (paged)
        list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    list->setCurrentItem(list->topLevelItem(0));
}

void PdfFormWindow::openCurrent() {
    const QTreeWidgetItem* item = list->currentItem();
    if (item)
        boxes.guarded(
            [&] { form.open(static_cast<std::size_t>(item->data(0, numberOfLine).toInt())); });
}

void PdfFormWindow::refresh() {
    const bool wanted = form.shown.value() == 1;
    const bool above = form.Check1.value() == 1;
    if (!wanted)
        hide();
    else if (!isVisible() || isAbove != above)
        showAs(above);
}

/// Window managers keep a window above the one that it belongs to; they look when it is shown.
void PdfFormWindow::showAs(bool above) {
    isAbove = above;
    hide();
    create();
    windowHandle()->setTransientParent(above ? main.windowHandle() : nullptr);
    show();
}

void PdfFormWindow::closeEvent(QCloseEvent* event) {
    form.shown.set(0);
    event->accept();
}

} // namespace tarnel
