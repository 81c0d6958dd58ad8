#include "window/progress/flights_card.h"

#include "window/progress/progress_figures.h"
#include "window/progress/rows.h"
#include "window/progress/time_spans.h"
#include "window/widgets/card.h"
#include "window/widgets/text_of.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tarnel {

QString momentOf(const LoggedFlight& flight, const ProgressModel& model) {
    const QLocale locale = localeOf(model.texts);
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(flight.when);
    const qint64 days = moment.date().daysTo(QDateTime::fromMSecsSinceEpoch(model.clock()).date());
    constexpr int daysInWeek = 7;
    const QString clock = locale.toString(moment.time(), QStringLiteral("HH:mm"));
    if (days == 0)
        return textOf(model.texts, Text::today) + QLatin1Char(' ') + clock;
    if (days > 0 && days < daysInWeek)
        return locale.toString(moment.date(), QStringLiteral("ddd")) + QLatin1Char(' ') + clock;
    return locale.toString(moment.date(), textOf(model.texts, Text::dayAndShortMonth));
}

QString scoreOf(const LoggedFlight& flight, const StringTable& texts) {
    const auto count = [&](Verdict verdict) {
        return std::ranges::count(flight.findings, verdict, &Finding::verdict);
    };
    const auto right = count(Verdict::right);
    return textOf(texts, Text::someOf).arg(right).arg(right + count(Verdict::wrong));
}

QString worstOf(const LoggedFlight& flight, const ProgressModel& model) {
    if (isFaultless(flight))
        return QStringLiteral("✓ ") + textOf(model.texts, Text::withinLimits);
    const auto worst = std::ranges::find(flight.findings, Verdict::wrong, &Finding::verdict);
    const QString told = QString::fromStdString(model.sentence(*worst));
    return told.isEmpty() ? QString() : QStringLiteral("✗ ") + told;
}

FlightsCard::FlightsCard(const ProgressModel& progressModel, QWidget* parent)
    : QWidget(parent), model(progressModel) {
    setObjectName(QStringLiteral("LatestFlights"));
    QVBoxLayout* column = cardColumn(*this);
    QLayout* title = cardTitle(textOf(model.texts, Text::myFlights), QString(), *this);
    beside = qobject_cast<QLabel*>(title->itemAt(1)->widget());
    column->addLayout(title);
    column->addWidget(hairline(this));
    rows = new QVBoxLayout;
    rows->setSpacing(0);
    column->addLayout(rows, 1);
    column->addWidget(hairline(this));
    all = new QPushButton(textOf(model.texts, Text::myFlights), this);
    all->setObjectName(QStringLiteral("AllFlights"));
    all->setProperty("quiz", true);
    connect(all, &QPushButton::clicked, this, [this] { onAllFlights(); });
    column->addWidget(all, 0, Qt::AlignLeft);
}

void FlightsCard::show(const std::vector<LoggedFlight>& flights) {
    emptyRows(*rows);
    beside->setText(flights.empty() ? QString()
                                    : textOf(model.texts, Text::latestOf).arg(flights.size()));
    for (std::size_t i = 0; i < std::min(most, flights.size()); ++i) {
        if (i > 0)
            rows->addWidget(hairline(this));
        addRow(flights[i]);
    }
    if (flights.empty())
        rows->addWidget(noteLabel(textOf(model.texts, Text::noFlightsYet), this));
    rows->addStretch();
    all->setEnabled(!flights.empty());
}

void FlightsCard::addRow(const LoggedFlight& flight) {
    auto* moment = new QLabel(momentOf(flight, model), this);
    moment->setProperty("secondary", true);
    moment->setFixedWidth(moment->fontMetrics().horizontalAdvance(QStringLiteral("Gestern 88:88")));
    auto* score = new QLabel(scoreOf(flight, model.texts), this);
    score->setProperty("strong", true);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(moment);
    row->addLayout(twoLines(QString::fromStdString(flight.title) + QStringLiteral("  ") +
                                textOf(model.texts, Text::attemptNumber).arg(flight.attempt),
                            worstOf(flight, model), this),
                   1);
    if (flight.pinned) {
        auto* pinned = new QLabel(textOf(model.texts, Text::pinned), this);
        pinned->setProperty("secondary", true);
        row->addWidget(pinned);
    }
    row->addWidget(score);
    QPushButton* link = linkButton(textOf(model.texts, Text::debriefFlight), this);
    link->setObjectName(QStringLiteral("OpenLatest%1").arg(flight.id));
    link->setAccessibleName(link->text() + QStringLiteral(": ") +
                            QString::fromStdString(flight.title));
    connect(link, &QPushButton::clicked, this, [this, id = flight.id] { onOpen({id}); });
    row->addWidget(link);
    rows->addLayout(row, 1);
}

void FlightsCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintCard(painter, rect());
}

} // namespace tarnel
