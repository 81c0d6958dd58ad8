#include "window/progress/spots_card.h"

#include "look/look.h"
#include "window/progress/rows.h"
#include "window/widgets/card.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tarnel {

namespace {

/// One cell a question, filled where it was right.
class Cells : public QWidget {
  public:
    Cells(int rightCount, int askedCount, QWidget* parent)
        : QWidget(parent), right(rightCount), asked(askedCount) {
        setObjectName(QStringLiteral("SpotCells"));
        setFixedSize(pitch * SpotProgress::latest, height);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < asked; ++i) {
            const bool filled = i < right;
            painter.setPen(filled ? look::colours().curve : look::colours().allExercises);
            painter.setBrush(filled ? look::colours().curve : look::colours().card);
            painter.drawRoundedRect(QRectF(pitch * i + 0.5, 0.5, 5, height - 1), 1.5, 1.5);
        }
    }

  private:
    static constexpr int pitch = 8;
    static constexpr int height = 13;
    int right;
    int asked;
};

} // namespace

SpotsCard::SpotsCard(const StringTable& table, QWidget* parent) : QWidget(parent), texts(table) {
    setObjectName(QStringLiteral("WeakSpots"));
    QVBoxLayout* column = cardColumn(*this);
    column->addLayout(
        cardTitle(textOf(texts, Text::trainNext), textOf(texts, Text::weakestFirst), *this));
    column->addWidget(hairline(this));
    rows = new QVBoxLayout;
    rows->setSpacing(0);
    column->addLayout(rows, 1);
    column->addWidget(hairline(this));
    chosen = new QPushButton(textOf(texts, Text::practiseMistakes), this);
    chosen->setObjectName(QStringLiteral("PractiseMistakes"));
    chosen->setProperty("primary", true);
    connect(chosen, &QPushButton::clicked, this, [this] { onPractiseMistakes(); });
    all = new QPushButton(textOf(texts, Text::practiseAllMistakes), this);
    all->setObjectName(QStringLiteral("PractiseAllMistakes"));
    all->setProperty("quiz", true);
    all->setAccessibleName(textOf(texts, Text::practiseMistakes) + QStringLiteral(", ") +
                           all->text());
    connect(all, &QPushButton::clicked, this, [this] { onPractiseAll(); });
    count = new QLabel(this);
    count->setProperty("secondary", true);
    count->setWordWrap(true);
    auto* foot = new QHBoxLayout;
    foot->addWidget(chosen);
    foot->addWidget(all);
    foot->addStretch();
    column->addWidget(count);
    column->addLayout(foot);
}

void SpotsCard::show(const Progress& progress, ExerciseType exercise, int mistakes, bool mayStart) {
    emptyRows(*rows);
    for (std::size_t i = 0; i < std::min(most, progress.spots.size()); ++i) {
        if (i > 0)
            rows->addWidget(hairline(this));
        addRow(progress.spots[i], mayStart);
    }
    if (progress.spots.empty())
        rows->addWidget(noteLabel(progress.answers == 0
                                      ? textOf(texts, Text::nothingAnswered)
                                      : textOf(texts, Text::noWeakSpots).arg(SpotProgress::fewest),
                                  this));
    rows->addStretch();
    const QString name = QString::fromStdString(exerciseName(exercise, texts));
    all->setEnabled(mayStart);
    chosen->setEnabled(mayStart);
    chosen->setAccessibleName(textOf(texts, Text::practiseMistakes) + QStringLiteral(", ") + name);
    count->setText(mistakes > 0 ? textOf(texts, Text::mistakesToTrain).arg(name).arg(mistakes)
                                : textOf(texts, Text::restedToTrain).arg(name));
}

void SpotsCard::addRow(const SpotProgress& spot, bool mayStart) {
    QStringList exercises;
    for (const ExerciseType exercise : spot.exercises)
        exercises << QString::fromStdString(exerciseName(exercise, texts));
    const QString words = QString::fromStdString(spotName(spot.spot, texts));
    const QString told = textOf(texts, Text::someOf).arg(spot.right).arg(spot.asked);
    auto* score = new QLabel(told, this);
    score->setProperty("strong", true);
    score->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    score->setMinimumWidth(
        score->fontMetrics().horizontalAdvance(textOf(texts, Text::someOf).arg(88).arg(88)));
    QPushButton* link = linkButton(textOf(texts, Text::practise), this);
    link->setObjectName(QStringLiteral("PractiseSpot%1").arg(static_cast<int>(spot.spot)));
    link->setAccessibleName(QStringLiteral("%1: %2, %3").arg(link->text(), words, told));
    link->setEnabled(mayStart);
    connect(link, &QPushButton::clicked, this, [this, spot] { onPractise(spot); });
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addLayout(twoLines(words, exercises.join(QStringLiteral(", ")), this), 1);
    auto* cells = new Cells(spot.right, spot.asked, this);
    cells->setVisible(hasRoomForCells());
    row->addWidget(cells);
    row->addWidget(score);
    row->addWidget(link);
    rows->addLayout(row, 1);
}

bool SpotsCard::hasRoomForCells() const {
    constexpr int letters = 60;
    return width() > letters * fontMetrics().averageCharWidth();
}

void SpotsCard::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (auto* cells : findChildren<QWidget*>(QStringLiteral("SpotCells")))
        cells->setVisible(hasRoomForCells());
}

void SpotsCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
}

} // namespace tarnel
