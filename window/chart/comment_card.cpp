#include "window/chart/comment_card.h"

#include "look/look.h"
#include "window/chart/comment_mark.h"
#include "window/widgets/announce.h"
#include "window/widgets/card.h"
#include "window/widgets/segment_row.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int sectionGap = 6;
constexpr int buttonGap = 4;
constexpr int mostLines = 6;  ///< a longer comment scrolls
constexpr int textSlack = 24; ///< of the width: the mark, its gap and the frame of the text

} // namespace

CommentCard::CommentCard(CommentPanel& commentControls, PracticePanel& practiceControls,
                         const Comments& sessionComments, BoxDesk& boxDesk, FormBinding& links,
                         QWidget* parent)
    : QWidget(parent),
      commentPanel(commentControls),
      practicePanel(practiceControls),
      comments(sessionComments),
      boxes(boxDesk),
      binding(links) {
    auto* sections = new QVBoxLayout(this);
    sections->setContentsMargins(look::cardInset, look::gap, look::cardInset, look::gap);
    sections->setSpacing(sectionGap);
    sections->addWidget(commentRow = makeComment(), 1);
    sections->addWidget(writer = makeWriter());
    sections->addWidget(practice = makePractice());
    refresh();
}

QWidget* CommentCard::makeComment() {
    auto* row = new QWidget(this);
    auto* across = new QHBoxLayout(row);
    across->setContentsMargins(0, 0, 0, 0);
    mark = new CommentMark(QStringLiteral("▸"), row);
    mark->setObjectName(QStringLiteral("Text3"));
    mark->setProperty("comment", true);
    mark->setAccessibleName(textOf(boxes.texts, Text::commentMark));
    across->addWidget(mark, 0, Qt::AlignTop);
    place = new QScrollArea(row);
    place->setObjectName(QStringLiteral("Frame3"));
    place->setFocusPolicy(Qt::StrongFocus);
    place->setWidgetResizable(true);
    place->setMinimumHeight(1); // the card measures the text itself
    place->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    comment = new QLabel;
    comment->setProperty("comment", true);
    comment->setWordWrap(true);
    comment->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    binding.bind(commentPanel.comment, *comment);
    place->setWidget(comment);
    across->addWidget(place, 1);
    return row;
}

void CommentCard::addButtons(QBoxLayout& row, std::initializer_list<CommandButton*> buttons) {
    for (CommandButton* control : buttons) {
        auto* button = new QPushButton(this);
        binding.bind(*control, *button);
        row.addWidget(button);
    }
}

QWidget* CommentCard::makeWriter() {
    CommentPanel& panel = commentPanel;
    auto* section = new QWidget(this);
    auto* rows = new QVBoxLayout(section);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(buttonGap);
    auto* entry = new QHBoxLayout;
    entry->setSpacing(buttonGap);
    auto* numberCaption = new QLabel(textOf(boxes.texts, Text::commentNumber), section);
    numberCaption->setProperty("secondary", true);
    entry->addWidget(numberCaption);
    auto* number = new QLabel(section);
    number->setProperty("readout", true);
    binding.bind(panel.number, *number);
    entry->addWidget(number);
    auto* text = new QLineEdit(section);
    text->setMaxLength(Comments::longestText);
    text->setPlaceholderText(textOf(boxes.texts, Text::comment));
    section->setFocusProxy(text);
    binding.bind(panel.text, *text);
    connect(text, &QLineEdit::returnPressed, this,
            [this] { boxes.guarded([this] { commentPanel.startStop.click(); }); });
    entry->addWidget(text, 1);
    addButtons(*entry, {&panel.startStop});
    rows->addLayout(entry);
    auto* commands = new QHBoxLayout;
    commands->setSpacing(buttonGap);
    addButtons(*commands, {&panel.previous, &panel.next});
    commands->addStretch(1);
    addButtons(*commands, {&panel.deleteOne, &panel.deleteAll});
    rows->addLayout(commands);
    return section;
}

QWidget* CommentCard::makePractice() {
    PracticePanel& panel = practicePanel;
    auto* section = new QWidget(this);
    section->setObjectName(QStringLiteral("Frame2"));
    auto* row = new QHBoxLayout(section);
    row->setContentsMargins(0, 0, 0, 0);
    auto* name = new QLabel(textOf(boxes.texts, *panel.frame.caption()), section);
    name->setProperty("secondary", true);
    row->addWidget(name);
    row->addWidget(segmentRow(binding, name->text(), {&panel.keep, &panel.recall}, section), 1);
    addButtons(*row, {&panel.debrief});
    return section;
}

void CommentCard::refresh() {
    const bool written = commentPanel.comment.visible();
    const bool writes = commentPanel.write.value() == 1;
    commentRow->setVisible(written);
    mark->setLit(commentPanel.mark.visible());
    const bool opens = writes && writer->isHidden();
    writer->setVisible(writes);
    if (opens)
        writer->setFocus();
    practice->setVisible(practicePanel.frame.visible());
    practice->setEnabled(practicePanel.frame.enabled());
    if (!written || comment->text() == spokenComment)
        return;
    spokenComment = comment->text();
    const QString spoken =
        textOf(boxes.texts, Text::comment) + QStringLiteral(": ") + *spokenComment;
    place->setAccessibleName(spoken);
    announce(*this, spoken);
}

std::size_t CommentCard::lettersOfComments() const {
    std::size_t letters = 0;
    for (int i = 0; i < Comments::count; ++i)
        letters += comments.text(i).size();
    return letters;
}

std::size_t CommentCard::contents() const {
    const auto flag = [](bool value) -> std::size_t { return value ? 1 : 0; };
    return lettersOfComments() * 8 + flag(commentPanel.comment.visible()) * 4 +
           flag(commentPanel.write.value() == 1) * 2 + flag(practicePanel.frame.visible());
}

int CommentCard::commentHeight(int width) const {
    comment->ensurePolished(); // the style sheet sets its font
    const QFontMetrics metrics = comment->fontMetrics();
    const QRect room(0, 0, std::max(1, width - 2 * look::cardInset - textSlack), 10'000);
    int tallest = 0;
    const auto measure = [&](const std::string& text) {
        if (text.empty())
            return;
        const QRect taken = metrics.boundingRect(
            room, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(text));
        tallest = std::max(tallest, taken.height());
    };
    for (int i = 0; i < Comments::count; ++i)
        measure(comments.text(i));
    measure(commentPanel.comment.text());
    const int line = metrics.lineSpacing();
    return std::clamp(tallest, line, mostLines * line) + 2;
}

int CommentCard::wantedHeight(int width) const {
    return heightWith(commentHeight(width));
}

int CommentCard::leastHeight(int width) const {
    constexpr int lines = 2;
    comment->ensurePolished();
    return heightWith(
        std::min(commentHeight(width), lines * comment->fontMetrics().lineSpacing() + 2));
}

int CommentCard::heightWith(int commentHeight) const {
    int height = 0;
    const auto add = [&](const QWidget& section, int wanted) {
        if (!section.isHidden())
            height += wanted + (height > 0 ? sectionGap : 0);
    };
    add(*commentRow, commentHeight);
    add(*writer, writer->sizeHint().height());
    add(*practice, practice->sizeHint().height());
    return height > 0 ? height + 2 * look::gap : 0;
}

void CommentCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

} // namespace tarnel
