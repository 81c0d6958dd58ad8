#include "window/progress/progress_page.h"

#include "shell/asked_file.h"
#include "shell/memory_log.h"
#include "window/progress/exercise_table.h"
#include "window/progress/flights_card.h"
#include "window/progress/flights_page.h"
#include "window/progress/progress_figures.h"
#include "window/progress/progress_plot.h"
#include "window/progress/spots_card.h"
#include "window/widgets/busy_cursor.h"
#include "window/widgets/card.h"
#include "window/widgets/choice_button.h"
#include "window/widgets/text_of.h"
#include "window/widgets/wrap_layout.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int leftShare = 764;
constexpr int rightShare = 492;

/// A card without contents of its own.
class Card : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        paintCard(painter, rect());
    }
};

} // namespace

ProgressPage::ProgressPage(ProgressModel progressModel, QWidget* parent)
    : QWidget(parent), model(std::move(progressModel)), day(today()) {
    setObjectName(QStringLiteral("Progress"));
    setAccessibleName(textOf(model.texts, Text::progress));
    hide();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(look::gap, look::gap, look::gap, look::gap);
    column->setSpacing(look::gap);
    column->addWidget(makeHeader());
    pages = new QStackedLayout;
    column->addLayout(pages, 1);
    pages->addWidget(makeProgress());
    all = new FlightsPage(model, this);
    all->onBack = [this] { showFlights(false); };
    all->onChange = [this] { reload(); };
    all->onOpen =
        latest->onOpen = [this](const std::vector<std::int64_t>& ids) { openFlights(ids); };
    pages->addWidget(all);
}

/// In one line, or with large texts in as many as it takes.
QWidget* ProgressPage::makeHeader() {
    auto* header = new Card(this);
    auto* frame = new QHBoxLayout(header);
    frame->setContentsMargins(cardInset, 8, 8, 8);
    auto* line = new WrapLayout(WrapLayout::Manner::flowing, 2 * look::gap, look::gap);
    frame->addLayout(line);
    auto* title = new QLabel(textOf(model.texts, Text::progress), header);
    title->setProperty("quizTitle", true);
    line->addWidget(title);
    auto* span = new QHBoxLayout;
    span->setSpacing(look::gap);
    addSpanButtons(*span);
    span->addWidget(stepButton(-1, "EarlierSpan", Text::earlier));
    span->addWidget(forward = stepButton(1, "LaterSpan", Text::later));
    spanTitle = new QLabel(header);
    spanTitle->setProperty("strong", true);
    spanBeside = new QLabel(header);
    spanBeside->setProperty("secondary", true);
    span->addWidget(spanTitle);
    span->addWidget(spanBeside);
    line->addLayout(span);
    auto* others = new QHBoxLayout;
    others->setSpacing(look::gap);
    others->addStretch();
    addMenu(*others);
    line->addLayout(others);
    return header;
}

void ProgressPage::addSpanButtons(QBoxLayout& line) {
    constexpr int padding = 24;
    static constexpr std::tuple<Text, const char*, const char*> spanTexts[] = {
        {Text::spanDay, "SpanDay", "first"},
        {Text::spanWeek, "SpanWeek", "middle"},
        {Text::spanMonth, "SpanMonth", "last"}};
    auto* bar = new QHBoxLayout;
    bar->setSpacing(0);
    for (std::size_t i = 0; i < spanButtons.size(); ++i) {
        const auto& [caption, name, place] = spanTexts[i];
        auto* segment = new ChoiceButton(padding, this);
        segment->setText(textOf(model.texts, caption));
        segment->setObjectName(QString::fromLatin1(name));
        segment->setProperty("segment", place);
        segment->setCheckable(true);
        connect(segment, &QPushButton::clicked, this,
                [this, i] { chooseSpan(static_cast<SpanKind>(i)); });
        bar->addWidget(segment);
        spanButtons[i] = segment;
    }
    line.addLayout(bar);
}

void ProgressPage::addMenu(QBoxLayout& line) {
    courses = new QComboBox(this);
    courses->setObjectName(QStringLiteral("ProgressCourse"));
    courses->setProperty("quiz", true);
    courses->setAccessibleName(textOf(model.texts, Text::csvCourse));
    courses->setMinimumContentsLength(12);
    courses->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(courses, &QComboBox::activated, this, [this] { reload(); });
    line.addWidget(courses);
    auto* more = new QPushButton(textOf(model.texts, Text::logMenu), this);
    more->setObjectName(QStringLiteral("LogMenu"));
    more->setProperty("quiz", true);
    auto* menu = new QMenu(more);
    const auto entry = [&](Text caption, const char* name, auto action) {
        QAction* item = menu->addAction(textOf(model.texts, caption) + QStringLiteral(" ..."));
        item->setObjectName(QString::fromLatin1(name));
        connect(item, &QAction::triggered, this, action);
    };
    entry(Text::exportAnswers, "ExportAnswers", [this] { model.training.exportAnswers(); });
    entry(Text::exportPlot, "ExportPlot", [this] {
        writeAskedFile(model.boxes,
                       {.saves = true,
                        .title = std::string(model.texts[Text::exportPlot]),
                        .present = std::string(model.texts[Text::plotFile]),
                        .folder = {},
                        .filter = std::string(model.texts[Text::debriefPictureFilter]),
                        .extension = "png"},
                       [this] { return plot->picture().toStdString(); });
    });
    entry(Text::deleteLog, "DeleteLog", [this] {
        if (model.training.deleteEverything())
            reload();
    });
    more->setMenu(menu);
    line.addWidget(more);
    closeButton = new QPushButton(textOf(model.texts, Text::closePage), this);
    closeButton->setObjectName(QStringLiteral("CloseProgress"));
    closeButton->setProperty("quiz", true);
    connect(closeButton, &QPushButton::clicked, this, [this] { close(); });
    line.addWidget(closeButton);
}

QToolButton* ProgressPage::stepButton(int way, const char* name, Text spoken) {
    auto* button = new QToolButton(this);
    button->setObjectName(QString::fromLatin1(name));
    button->setText(way < 0 ? QStringLiteral("‹") : QStringLiteral("›"));
    button->setAccessibleName(textOf(model.texts, spoken));
    button->setToolTip(textOf(model.texts, spoken));
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, way] { step(way); });
    return button;
}

QWidget* ProgressPage::makeProgress() {
    auto* body = new QWidget(this);
    auto* line = new QHBoxLayout(body);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(look::gap);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    for (QVBoxLayout* column : {left, right}) {
        column->setSpacing(look::gap);
        line->addLayout(column, column == left ? leftShare : rightShare);
    }
    left->addWidget(figures = new ProgressFigures(model.texts, body));
    auto* tableCard = new Card(body);
    auto* inner = new QVBoxLayout(tableCard);
    inner->setContentsMargins(6, 4, 6, 6);
    inner->addWidget(table = new ExerciseTable(model.texts, tableCard));
    table->onChoose = [this] { showChosen(); };
    constexpr int tableShare = 332;
    constexpr int plotShare = 260;
    left->addWidget(tableCard, tableShare);
    left->addWidget(plot = new ProgressPlot(model.texts, body), plotShare);
    right->addWidget(spots = new SpotsCard(model.texts, body), 1);
    right->addWidget(latest = new FlightsCard(model, body), 1);
    // Neither column is wide because of what stands in it.
    for (QWidget* card : std::initializer_list<QWidget*>{figures, tableCard, plot, spots, latest})
        card->setSizePolicy(QSizePolicy::Ignored, card->sizePolicy().verticalPolicy());
    spots->onPractise = [this](const SpotProgress& spot) {
        practise(spot.courseKey, spot.exercises.front(), spot.spot);
    };
    spots->onPractiseMistakes = [this] {
        practise(course() ? course()->key : std::string(),
                 progress.exercises[static_cast<std::size_t>(table->chosen())].exercise, {});
    };
    spots->onPractiseAll = [this] {
        std::vector<ExerciseType> weakestFirst;
        for (const ExerciseProgress& each : progress.exercises)
            weakestFirst.push_back(each.exercise);
        close();
        model.boxes.guarded([&] {
            model.training.practiseAll(course() ? course()->key : std::string(), weakestFirst);
        });
    };
    latest->onAllFlights = [this] { showFlights(true); };
    return body;
}

QDate ProgressPage::today() const {
    return QDateTime::fromMSecsSinceEpoch(model.clock()).date();
}

void ProgressPage::open() {
    day = today();
    showFlights(false);
    reload();
    QWidget::show();
    raise();
    table->setFocus(Qt::OtherFocusReason);
}

void ProgressPage::close() {
    hide();
    onClose();
}

void ProgressPage::chooseSpan(SpanKind chosen) {
    kind = chosen;
    reload();
}

void ProgressPage::step(int way) {
    day = spans().neighbour(way);
    reload();
}

void ProgressPage::showFlights(bool shown) {
    pages->setCurrentIndex(shown ? 1 : 0);
    if (shown)
        all->takeFocus();
    else if (isVisible())
        table->setFocus(Qt::OtherFocusReason);
}

/// The page goes first: the exercise takes its place.
void ProgressPage::practise(const std::string& courseKey, ExerciseType exercise,
                            std::optional<Text> spot) {
    close();
    model.boxes.guarded([&] { model.training.practise(courseKey, exercise, spot); });
}

/// The page makes room for the debrief; without one it stays.
void ProgressPage::openFlights(const std::vector<std::int64_t>& ids) {
    bool opened = false;
    model.boxes.guarded([&] { opened = model.openFlights(ids); });
    if (opened)
        close();
    else
        reload();
}

const LoggedCourse* ProgressPage::course() const {
    const auto found =
        std::ranges::find(known, courses->currentData().toInt(), &LoggedCourse::number);
    return found == known.end() ? nullptr : &*found;
}

/// All of them first; a course of the user's own goes by its name.
void ProgressPage::followCourses() {
    const int chosen = courses->currentData().toInt();
    courses->clear();
    courses->addItem(textOf(model.texts, Text::allExercises), 0);
    for (const LoggedCourse& each : known)
        courses->addItem(each.key.empty() ? textOf(model.texts, Text::shippedCourse)
                                          : QString::fromStdString(each.name).simplified(),
                         each.number);
    courses->setCurrentIndex(std::max(0, courses->findData(chosen)));
}

void ProgressPage::reload() {
    const TimeSpans shownSpans = spans();
    withBusyCursor([&] { readLog(shownSpans); });
    show(shownSpans);
}

void ProgressPage::readLog(const TimeSpans& shownSpans) {
    Progress found;
    bool read = model.training.with([&](TrainingLog& log) {
        known = log.courses();
        flights = log.flights();
    });
    followCourses();
    const LoggedCourse* only = course();
    read = read && model.training.with([&](TrainingLog& log) {
        found =
            progressOf(log, only ? std::optional(only->number) : std::nullopt, shownSpans.bounds());
    });
    if (!read) {
        MemoryLog empty;
        found = progressOf(empty, {}, shownSpans.bounds());
        flights.clear();
    }
    progress = std::move(found);
}

void ProgressPage::show(const TimeSpans& shownSpans) {
    static constexpr Text present[] = {Text::today, Text::thisWeek, Text::thisMonth};
    static constexpr Text many[] = {Text::lastDays, Text::lastWeeks, Text::lastMonths};
    const bool isNow = shownSpans.showsDay(today());
    for (std::size_t i = 0; i < spanButtons.size(); ++i)
        tarnel::showChosen(*spanButtons[i], i == static_cast<std::size_t>(kind));
    forward->setEnabled(!isNow);
    spanTitle->setText(shownSpans.title());
    spanBeside->setText(isNow ? textOf(model.texts, present[static_cast<int>(kind)]) : QString());
    std::vector<LoggedFlight> within;
    const std::vector<std::int64_t> bounds = shownSpans.bounds();
    std::ranges::copy_if(flights, std::back_inserter(within), [&](const LoggedFlight& flight) {
        return flight.when >= bounds[bounds.size() - 2] && flight.when < bounds.back();
    });
    figures->show(progress.all, within);
    table->show(progress, model.clock(), textOf(model.texts, many[static_cast<int>(kind)]));
    latest->show(flights);
    all->show(flights);
    showChosen();
}

void ProgressPage::showChosen() {
    const ExerciseProgress& chosen = progress.exercises[static_cast<std::size_t>(table->chosen())];
    plot->show(chosen, progress.all, spans());
    const std::string key = course() ? course()->key : std::string();
    spots->show(progress, chosen.exercise, model.training.mistakesOf(key, chosen.exercise),
                model.training.hasLog());
}

/// Single letters mean something to the trainer below, which rests now.
bool ProgressPage::event(QEvent* happening) {
    if (happening->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<QKeyEvent&>(*happening);
        if (!(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
            happening->accept();
    }
    return QWidget::event(happening);
}

void ProgressPage::keyPressEvent(QKeyEvent* key) {
    if (key->key() != Qt::Key_Escape)
        return QWidget::keyPressEvent(key);
    if (pages->currentIndex() == 1)
        showFlights(false);
    else
        close();
}

void ProgressPage::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), look::colours().desktop);
}

} // namespace tarnel
