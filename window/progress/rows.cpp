#include "window/progress/rows.h"

#include "window/widgets/card.h"
#include "window/widgets/wrap_layout.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tarnel {

namespace {

/// A text that ends in dots where there is no room for all of it; its tool tip has the rest.
class CutLabel : public QLabel {
  public:
    CutLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
        setTextFormat(Qt::PlainText);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }

  protected:
    void resizeEvent(QResizeEvent* /*event*/) override {
        const bool cut = fontMetrics().horizontalAdvance(text()) > width();
        setToolTip(cut ? text() : QString());
    }
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideRight, width()));
    }
};

} // namespace

QVBoxLayout* cardColumn(QWidget& card) {
    auto* column = new QVBoxLayout(&card);
    column->setContentsMargins(cardInset, 10, cardInset, 10);
    column->setSpacing(6);
    return column;
}

QLayout* cardTitle(const QString& title, const QString& beside, QWidget& card) {
    auto* name = new QLabel(title, &card);
    name->setProperty("quizTitle", true);
    auto* words = new QLabel(beside, &card);
    words->setProperty("secondary", true);
    auto* line = new WrapLayout(WrapLayout::Manner::flowing, 10, 0);
    line->addWidget(name);
    line->addWidget(words);
    return line;
}

QFrame* hairline(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setProperty("hairline", true);
    return line;
}

QLabel* noteLabel(const QString& text, QWidget* parent) {
    auto* note = new QLabel(text, parent);
    note->setTextFormat(Qt::PlainText);
    note->setProperty("secondary", true);
    note->setWordWrap(true);
    return note;
}

QPushButton* linkButton(const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text + QStringLiteral(" ›"), parent);
    button->setProperty("link", true);
    return button;
}

QVBoxLayout* twoLines(const QString& first, const QString& second, QWidget* parent) {
    auto* above = new CutLabel(first, parent);
    auto* below = new CutLabel(second, parent);
    below->setProperty("secondary", true);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    lines->addStretch();
    lines->addWidget(above);
    lines->addWidget(below);
    lines->addStretch();
    return lines;
}

void emptyRows(QLayout& rows) {
    while (QLayoutItem* item = rows.takeAt(0)) {
        if (item->layout())
            emptyRows(*item->layout());
        if (item->widget())
            item->widget()->deleteLater();
        if (item->widget())
            item->widget()->hide();
        delete item;
    }
}

} // namespace tarnel
