#include "window/debrief/debrief_card.h"

#include "look/look.h"
#include "window/debrief/finding_list.h"
#include "window/debrief/task_chooser.h"
#include "window/widgets/announce.h"
#include "window/widgets/card.h"
#include "window/widgets/icons.h"
#include "window/widgets/quiz_measures.h"
#include "window/widgets/wrap_layout.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int partGap = 4;
constexpr int actionGap = 4;

} // namespace

DebriefCard::DebriefCard(const DebriefModel& debriefModel, FormBinding& links, QWidget* parent)
    : QWidget(parent), model(debriefModel) {
    setObjectName(QStringLiteral("DebriefCard"));
    auto* parts = new QVBoxLayout(this);
    parts->setContentsMargins(look::cardInset, look::gap, look::cardInset, look::gap);
    parts->setSpacing(partGap);
    parts->addLayout(makeHead());
    parts->addWidget(makePages(links), 1);
    parts->addLayout(actions = makeActions(links));
    hide();
}

QLayout* DebriefCard::makeHead() {
    auto* row = new QHBoxLayout;
    row->setSpacing(look::gap);
    title = new QLabel(this);
    title->setProperty("quizTitle", true);
    row->addWidget(title);
    detail = new QLabel(this);
    detail->setProperty("secondary", true);
    detail->setMinimumWidth(1);
    row->addWidget(detail, 1);
    earlier = new QLabel(this);
    earlier->setProperty("secondary", true);
    row->addWidget(earlier);
    score = new QLabel(this);
    score->setObjectName(QStringLiteral("DebriefScore"));
    score->setProperty("readout", true);
    row->addWidget(score);
    return row;
}

QWidget* DebriefCard::makePages(FormBinding& binding) {
    pages = new QStackedWidget(this);
    findings = new FindingList(pages);
    findings->setAccessibleName(textOf(model.boxes.texts, Text::debriefFindings));
    findings->onChoose = [this](int index) {
        model.boxes.guarded([&] { model.desk.chooseFinding(static_cast<std::size_t>(index)); });
    };
    nothing = new QLabel(textOf(model.boxes.texts, Text::debriefNothing), pages);
    nothing->setWordWrap(true);
    nothing->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    chooser = new TaskChooser(model, binding, pages);
    for (QWidget* page : std::initializer_list<QWidget*>{findings, nothing, chooser})
        pages->addWidget(page);
    return pages;
}

QPushButton* DebriefCard::button(CommandButton& control, FormBinding& binding) {
    auto* made = new QPushButton(this);
    binding.bind(control, *made);
    return made;
}

QLayout* DebriefCard::makeActions(FormBinding& binding) {
    auto* row = new WrapLayout(WrapLayout::Manner::flowing, actionGap, actionGap);
    QPushButton* again = button(model.controls.flyAgain, binding);
    again->setProperty("primary", true);
    again->setProperty("quiz", true);
    again->setIcon(signIcon(Sign::play, inkOnAccent));
    connect(again, &QPushButton::clicked, this, [this] { onFlyAgain(); });
    row->addWidget(again);
    auto* compare = new QPushButton(this);
    compare->setProperty("toggle", true);
    binding.bind(model.controls.compare, *compare);
    row->addWidget(compare);
    auto* exported = new QPushButton(textOf(model.boxes.texts, Text::debriefExport), this);
    exported->setObjectName(QStringLiteral("DebriefExport"));
    auto* ways = new QMenu(exported);
    for (CommandButton* way :
         {&model.controls.exportPage, &model.controls.exportPicture, &model.controls.exportValues})
        binding.bind(*way, *ways->addAction(textOf(model.boxes.texts, *way->caption())));
    exported->setMenu(ways);
    row->addWidget(exported);
    auto* last = new QHBoxLayout; // they go to the next line together
    last->setSpacing(actionGap);
    last->addWidget(button(model.controls.task, binding));
    auto* limits = new QComboBox(this);
    limits->setProperty("quiz", true);
    limits->setAccessibleName(textOf(model.boxes.texts, Text::debriefLimits));
    binding.bind(model.controls.limits, *limits);
    last->addWidget(limits);
    last->addWidget(button(model.controls.close, binding));
    row->addLayout(last);
    return row;
}

void DebriefCard::refresh() {
    if (!model.desk.isOpen() || shown == model.desk.revision())
        return;
    shown = model.desk.revision();
    const StringTable& texts = model.boxes.texts;
    title->setText(taskTitle(model));
    const Attempt* attempt = model.desk.choosesTask() ? nullptr : model.desk.attempt();
    detail->setText(attempt ? taskDetail(model) : QString());
    score->setText(attempt ? scoreOf(*attempt, texts) : QString());
    const bool compares = attempt && !model.desk.compared().empty();
    earlier->setText(compares ? earlierScoreOf(model.desk.compared().front(), texts) : QString());
    chooser->refresh();
    if (attempt)
        showFindings();
    else
        pages->setCurrentWidget(chooser);
}

void DebriefCard::showFindings() {
    const bool hadKeyboard = findings->hasFocus() || chooser->isAncestorOf(focusWidget());
    findings->show(findingRows(model.desk, model.boxes.texts));
    findings->mark(model.desk.finding() ? static_cast<int>(*model.desk.finding()) : -1);
    pages->setCurrentWidget(findings->rows().empty() ? static_cast<QWidget*>(nothing) : findings);
    if (hadKeyboard)
        takeKeyboard();
    announce();
}

/// The finding that is looked at is said at once, also where it was gone to from elsewhere.
void DebriefCard::announce() {
    if (model.desk.finding() == announced)
        return;
    announced = model.desk.finding();
    if (!announced)
        return;
    const FindingRow& row = findings->rows()[*announced];
    const QString told = row.sentence + QStringLiteral(", ") + row.word;
    tarnel::announce(*this, textOf(model.boxes.texts, Text::debriefMoment).arg(told, row.moment));
}

void DebriefCard::takeKeyboard() {
    QWidget* first = pages->currentWidget();
    if (first == chooser)
        first = chooser->findChild<QWidget*>(QStringLiteral("TaskKind"));
    first->setFocus(Qt::OtherFocusReason);
}

int DebriefCard::heightWith(int width, int page) const {
    const int inner = width - 2 * look::cardInset;
    return 2 * look::gap + 2 * partGap + title->sizeHint().height() + page +
           actions->heightForWidth(inner);
}

int DebriefCard::wantedHeight(int width) const {
    return heightWith(width, pages->currentWidget()->sizeHint().height());
}

int DebriefCard::leastHeight(int width) const {
    constexpr int fewestRows = 3;
    const double row = look::leastTarget * quiz::scaleOf(*this);
    return heightWith(width, static_cast<int>(fewestRows * row));
}

void DebriefCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
    painter.setPen(QPen(look::colours().accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), look::controlRadius,
                            look::controlRadius);
}

} // namespace tarnel
