#include "window/progress/exercise_table.h"

#include "look/look.h"
#include "window/progress/time_spans.h"
#include "window/widgets/text_of.h"

#include <QHeaderView>
#include <QPainter>
#include <QPolygonF>
#include <QStyledItemDelegate>

#include <array>

namespace tarnel {

namespace {

constexpr int shownTrend = 8;
constexpr int widestBar = 76;
constexpr int narrowestBar = 30;
constexpr int cellInset = 8;
constexpr int percentRole = Qt::UserRole;
constexpr int historyRole = Qt::UserRole + 1;
constexpr int inkRole = Qt::UserRole + 3;
constexpr int chosenBar = 3;
constexpr int narrowShareCell = 110; ///< without room for a wide bar
constexpr int narrow = 660;          ///< without room for the trend

/// What a cell's text means; its colour follows the desktop.
enum class CellInk { plain, secondary, better, worse };

QColor colourOf(CellInk ink) {
    switch (ink) {
    case CellInk::secondary:
        return look::colours().secondaryInk;
    case CellInk::better:
        return look::colours().right;
    case CellInk::worse:
        return look::colours().exceeded;
    case CellInk::plain:
        break;
    }
    return look::colours().ink;
}

void setInk(QTableWidgetItem& cell, CellInk ink) {
    cell.setData(inkRole, static_cast<int>(ink));
}

/// Pictures beside or in place of a cell's text, and the row that is chosen.
class CellPainter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        if (chosen)
            painter->fillRect(option.rect, look::colours().tint);
        if (chosen && index.column() == 0)
            painter->fillRect(QRect(option.rect.topLeft(), QSize(chosenBar, option.rect.height())),
                              look::colours().accent);
        painter->setPen(look::colours().hairline);
        painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
        paintText(*painter, option, index, chosen);
        paintShare(*painter, option.rect, index.data(percentRole), chosen);
        paintTrend(*painter, option.rect, index.data(historyRole).toList());
        painter->restore();
    }

  private:
    static void paintText(QPainter& painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index, bool chosen) {
        QFont font = option.font;
        font.setBold(index.data(Qt::FontRole).toBool() || (chosen && index.column() == 0));
        painter.setFont(font);
        painter.setPen(colourOf(static_cast<CellInk>(index.data(inkRole).toInt())));
        const QRect place = option.rect.adjusted(cellInset, 0, -cellInset, 0);
        const auto side = index.column() == 0 ? Qt::AlignLeft : Qt::AlignRight;
        const QString text = index.data(Qt::DisplayRole).toString();
        if (!index.data(historyRole).isValid())
            painter.drawText(place, static_cast<int>(side | Qt::AlignVCenter),
                             QFontMetrics(font).elidedText(text, Qt::ElideRight, place.width()));
    }
    static void paintShare(QPainter& painter, const QRect& cell, const QVariant& percent,
                           bool chosen) {
        constexpr int thickness = 8;
        constexpr double whole = 100;
        if (!percent.isValid())
            return;
        const QRectF bar(cell.left() + cellInset, cell.center().y() - thickness / 2.0 + 1,
                         barIn(cell.width()), thickness);
        painter.setPen(Qt::NoPen);
        painter.setBrush(look::colours().hairline);
        painter.drawRoundedRect(bar, 2, 2);
        painter.setBrush(chosen ? look::colours().curve : look::colours().quietCurve);
        painter.drawRoundedRect(
            QRectF(bar.topLeft(), QSizeF(bar.width() * percent.toDouble() / whole, thickness)), 2,
            2);
    }
    /// The text beside it has the room of the narrow cell's.
    static int barIn(int width) { return width > narrowShareCell ? widestBar : narrowestBar; }
    static void paintTrend(QPainter& painter, const QRect& cell, const QVariantList& history) {
        constexpr double whole = 100;
        constexpr int air = 6;
        if (history.isEmpty())
            return;
        const QRectF area = QRectF(cell).adjusted(cellInset, air, -cellInset, -air);
        QPolygonF line;
        for (qsizetype i = 0; i < history.size(); ++i)
            if (!history[i].isNull())
                line << QPointF(area.left() +
                                    area.width() * static_cast<double>(i) / (shownTrend - 1),
                                area.bottom() - area.height() * history[i].toDouble() / whole);
        if (line.isEmpty())
            return;
        constexpr double dot = 2.5;
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look::colours().curve, 1.5));
        painter.drawPolyline(line);
        painter.setBrush(look::colours().curve);
        painter.drawEllipse(line.back(), dot, dot);
    }
};

} // namespace

ExerciseTable::ExerciseTable(const StringTable& table, QWidget* parent)
    : QTableWidget(0, columns, parent), texts(table) {
    setObjectName(QStringLiteral("ProgressExercises"));
    setAccessibleName(textOf(texts, Text::menuExercises));
    setItemDelegate(new CellPainter(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setFrameShape(NoFrame);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int, int before, int) {
        if (row == before || row < 0 || !item(row, name))
            return;
        chosenType = static_cast<ExerciseType>(item(row, name)->data(Qt::UserRole + 2).toInt());
        onChoose();
    });
}

void ExerciseTable::put(int row, Column column, const QString& text, bool bold) {
    auto* cell = new QTableWidgetItem(text);
    cell->setData(Qt::FontRole, bold);
    setItem(row, column, cell);
}

void ExerciseTable::fill(int row, const ExerciseProgress& exercise, std::int64_t now) {
    const Tally& tally = exercise.now();
    const auto percent = tally.percent();
    const auto earlier = exercise.before().percent();
    put(row, name, QString::fromStdString(exerciseName(exercise.exercise, texts)));
    item(row, name)->setData(Qt::UserRole + 2, static_cast<int>(exercise.exercise));
    put(row, count,
        percent ? QStringLiteral("%1 / %2").arg(tally.right).arg(tally.asked)
                : textOf(texts, Text::notAsked));
    put(row, share, percent ? QStringLiteral("%1 %").arg(*percent) : QString(), true);
    if (percent)
        item(row, share)->setData(percentRole, *percent);
    const int difference = percent && earlier ? *percent - *earlier : 0;
    put(row, change,
        !percent || !earlier ? QString()
        : difference == 0    ? QStringLiteral("=")
                          : (difference > 0 ? QStringLiteral("▲ %1") : QStringLiteral("▼ %1"))
                                .arg(std::abs(difference)),
        difference != 0);
    setInk(*item(row, change), difference > 0   ? CellInk::better
                               : difference < 0 ? CellInk::worse
                                                : CellInk::secondary);
    put(row, time,
        percent ? textOf(texts, Text::seconds).arg((tally.milliseconds + 500) / 1000) : QString());
    QVariantList history;
    for (auto i = exercise.history.size() - shownTrend; i < exercise.history.size(); ++i) {
        const auto then = exercise.history[i].percent();
        history.append(then ? QVariant(*then) : QVariant());
    }
    put(row, trend, QString());
    item(row, trend)->setData(historyRole, history);
    put(row, lastAsked, ago(exercise.lastAsked, now, texts));
    for (const Column column : {name, count, lastAsked})
        if (!percent || column == lastAsked)
            setInk(*item(row, column), CellInk::secondary);
}

void ExerciseTable::show(const Progress& progress, std::int64_t now, const QString& spanMany) {
    const QSignalBlocker quiet(this);
    setHorizontalHeaderLabels({textOf(texts, Text::csvExercise), textOf(texts, Text::rightOfAsked),
                               textOf(texts, Text::csvRight), textOf(texts, Text::change),
                               textOf(texts, Text::timeTaken), spanMany.arg(shownTrend),
                               textOf(texts, Text::lastAsked)});
    for (int column = 0; column < columns; ++column)
        horizontalHeaderItem(column)->setTextAlignment(
            Qt::AlignVCenter |
            (column == name || column == trend ? Qt::AlignLeft : Qt::AlignRight));
    const ExerciseType before = chosenType;
    setRowCount(static_cast<int>(progress.exercises.size()));
    int row = 0;
    int choose = 0;
    for (const ExerciseProgress& exercise : progress.exercises) {
        if (exercise.exercise == before)
            choose = row;
        fill(row++, exercise, now);
    }
    selectRow(choose);
    chosenType = progress.exercises[static_cast<std::size_t>(choose)].exercise;
    shareOut();
}

void ExerciseTable::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    shareOut();
}

int ExerciseTable::widestName() const {
    QFont bold = font();
    bold.setBold(true);
    int widest = 0;
    for (int row = 0; row < rowCount(); ++row)
        widest = std::max(widest, QFontMetrics(bold).horizontalAdvance(item(row, name)->text()));
    return widest;
}

/// All rows are in sight where there is room for them. The columns of numbers get what they need,
/// and the name what is left, but never less than it takes: the change
/// gives way first, then the table scrolls.
void ExerciseTable::shareOut() {
    constexpr int lowest = 5;
    constexpr int highest = 14;
    const int line = fontMetrics().height();
    const int least = std::max(look::leastTarget, line + lowest);
    verticalHeader()->setMinimumSectionSize(least);
    verticalHeader()->setDefaultSectionSize(std::clamp(
        viewport()->height() / std::max(1, rowCount()), least, std::max(least, line + highest)));
    const auto wide = [this](Text header, const QString& longest) {
        QFont bold = font();
        bold.setBold(true);
        return std::max(fontMetrics().horizontalAdvance(textOf(texts, header)),
                        QFontMetrics(bold).horizontalAdvance(longest)) +
               2 * cellInset + 2;
    };
    setColumnHidden(trend, width() < narrow);
    setColumnHidden(change, false);
    const std::array<std::pair<Column, int>, 5> widths = {{
        {count, wide(Text::rightOfAsked, QStringLiteral("188 / 188"))},
        {share, (width() < narrow ? narrowestBar : widestBar) + cellInset +
                    wide(Text::csvRight, QStringLiteral("100 %"))},
        {change, wide(Text::change, QStringLiteral("▲ 88"))},
        {time, wide(Text::timeTaken, QStringLiteral("888 s"))},
        {lastAsked, wide(Text::lastAsked, textOf(texts, Text::weeksAgo).arg(88))},
    }};
    int left = viewport()->width();
    for (const auto& [column, width] : widths) {
        setColumnWidth(column, width);
        left -= width;
    }
    constexpr double trendShare = 0.42;
    if (!isColumnHidden(trend)) {
        setColumnWidth(trend, static_cast<int>(left * trendShare));
        left -= columnWidth(trend);
    }
    const int needed = widestName() + 2 * cellInset + 2;
    if (left < needed) { // the plot shows the change, too
        left += columnWidth(change);
        setColumnHidden(change, true);
    }
    setColumnWidth(name, std::max(left, needed));
}

} // namespace tarnel
