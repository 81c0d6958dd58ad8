#include "window/debrief/finding_list.h"

#include "look/look.h"
#include "window/widgets/icons.h"
#include "window/widgets/quiz_measures.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include <algorithm>

namespace tarnel {

namespace {

constexpr double rowHeight = look::leastTarget;
constexpr double lineHeight = 15;
constexpr double signWidth = 21;
constexpr double columnGap = 10;
constexpr double barWidth = 3;
constexpr double edge = 8;
constexpr int fewestRows = 3;       ///< in sight
constexpr double mostBehind = 0.42; ///< of a row, for all but its sentence

QColor inkOf(Verdict verdict, const look::Colours& colours) {
    return verdict == Verdict::right   ? colours.right
           : verdict == Verdict::wrong ? colours.exceeded
                                       : colours.secondaryInk;
}

QFont sentenceFont(const FindingLook& looks, bool bold) {
    return looks.type(look::denseType, bold);
}

/// The widths of the columns behind the sentence, alike in all rows.
struct Columns {
    double earlier = 0;
    double word = 0;
    double moment = 0;

    /// Without room the first attempt's value gives way: it is still spoken and in the tool tip.
    Columns(const std::vector<FindingRow>& rows, double width, const FindingLook& looks) {
        const double scale = looks.scale;
        const QFontMetricsF plain(looks.type(look::unitType));
        const QFontMetricsF bold(sentenceFont(looks, true));
        for (const FindingRow& row : rows) {
            if (!row.earlier.isEmpty())
                earlier = std::max(earlier,
                                   plain.horizontalAdvance(row.earlier) + (columnGap + 14) * scale);
            word = std::max(word, bold.horizontalAdvance(row.word) + columnGap * scale);
            moment = std::max(moment, plain.horizontalAdvance(row.moment) + columnGap * scale);
        }
        if (behind() > mostBehind * width)
            earlier = 0;
    }
    [[nodiscard]] double behind() const { return earlier + word + moment; }
};

double sentenceWidth(double width, double scale, const Columns& columns) {
    return std::max(40.0, width - (2 * edge + signWidth) * scale - columns.behind());
}

QRectF sentenceBox(const FindingRow& row, double width, const FindingLook& looks) {
    // Bold, so that a row keeps its height when it is chosen.
    return QFontMetricsF(sentenceFont(looks, true))
        .boundingRect(QRectF(0, 0, width, 1000), Qt::AlignLeft | Qt::TextWordWrap, row.sentence);
}

FindingLook looksOf(const QWidget& list) {
    return {look::colours(), list.font().family(), quiz::scaleOf(list)};
}

class FindingDelegate : public QStyledItemDelegate {
  public:
    explicit FindingDelegate(FindingList& owner) : QStyledItemDelegate(&owner), list(owner) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const auto row = static_cast<std::size_t>(index.row());
        const bool chosen = list.currentIndex() == index;
        paintFinding(*painter, looksOf(list), list.rows()[row], option.rect, chosen, list.rows());
        if (!chosen || !list.hasFocus())
            return;
        painter->setPen(QPen(look::colours().accent, 1));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const int width = list.viewport()->width();
        const auto row = static_cast<std::size_t>(index.row());
        return {width, static_cast<int>(std::ceil(
                           findingHeight(list.rows()[row], width, looksOf(list), list.rows())))};
    }

  private:
    FindingList& list;
};

} // namespace

QFont FindingLook::type(double pixels, bool bold) const {
    QFont font = look::font(pixels * scale, bold ? QFont::Bold : QFont::Normal);
    font.setFamily(family);
    return font;
}

double findingHeight(const FindingRow& row, double width, const FindingLook& looks,
                     const std::vector<FindingRow>& all) {
    const double scale = looks.scale;
    const double room = sentenceWidth(width, scale, Columns(all, width, looks));
    const double text = sentenceBox(row, room, looks).height();
    return text > 1.5 * lineHeight * scale ? text + 5 * scale : rowHeight * scale;
}

void paintFinding(QPainter& painter, const FindingLook& looks, const FindingRow& row,
                  const QRectF& area, bool chosen, const std::vector<FindingRow>& all) {
    const look::Colours& colours = looks.colours;
    const double scale = looks.scale;
    const Columns columns(all, area.width(), looks);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (chosen) {
        painter.fillRect(area, colours.tint);
        painter.fillRect(QRectF(area.left(), area.top(), barWidth * scale, area.height()),
                         colours.accent);
    }
    const double left = area.left() + edge * scale;
    const double sign = 14 * scale;
    if (row.verdict != Verdict::open)
        paintSign(painter, row.verdict == Verdict::right ? Sign::right : Sign::wrong,
                  QRectF(left, area.center().y() - sign / 2, sign, sign),
                  inkOf(row.verdict, colours));
    const double textLeft = left + signWidth * scale;
    const double room = sentenceWidth(area.width(), scale, columns);
    painter.setPen(colours.ink);
    painter.setFont(sentenceFont(looks, chosen));
    painter.drawText(QRectF(textLeft, area.top(), room, area.height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, row.sentence);
    double x = textLeft + room;
    const auto cell = [&](double width) {
        const QRectF box(x, area.top(), width, area.height());
        x += width;
        return box;
    };
    const QRectF earlier = cell(columns.earlier);
    if (!row.earlier.isEmpty() && columns.earlier > 0) {
        painter.setFont(looks.type(look::unitType));
        painter.setPen(colours.secondaryInk);
        painter.drawText(earlier.adjusted(0, 0, -14 * scale, 0), Qt::AlignRight | Qt::AlignVCenter,
                         row.earlier);
        if (row.earlierVerdict != Verdict::open)
            paintSign(painter, row.earlierVerdict == Verdict::right ? Sign::tick : Sign::cross,
                      QRectF(earlier.right() - 12 * scale, area.center().y() - 5 * scale,
                             10 * scale, 10 * scale),
                      colours.secondaryInk);
    }
    painter.setFont(sentenceFont(looks, true));
    painter.setPen(inkOf(row.verdict, colours));
    painter.drawText(cell(columns.word).adjusted(columnGap * scale, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, row.word);
    painter.setFont(looks.type(look::unitType));
    painter.setPen(colours.secondaryInk);
    painter.drawText(cell(columns.moment), Qt::AlignRight | Qt::AlignVCenter, row.moment);
    painter.restore();
}

FindingList::FindingList(QWidget* parent) : QListView(parent) {
    setObjectName(QStringLiteral("DebriefFindings"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setFrameShape(QFrame::NoFrame);
    setEditTriggers(NoEditTriggers);
    items = new QStandardItemModel(this);
    setModel(items);
    setItemDelegate(new FindingDelegate(*this));
    // A screen reader selects an entry, which is not yet to go there.
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList selected = selectionModel()->selectedIndexes();
        if (!marking && !selected.isEmpty() && selected.front() != currentIndex())
            setCurrentIndex(selected.front());
    });
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) {
        if (onChoose)
            onChoose(index.row());
    });
}

void FindingList::show(std::vector<FindingRow> findings) {
    marking = true;
    shown = std::move(findings);
    items->clear();
    for (const FindingRow& row : shown) {
        auto* item = new QStandardItem(row.sentence);
        QString spoken =
            row.sentence + QStringLiteral(", ") + row.word + QStringLiteral(", ") + row.moment;
        if (!row.earlier.isEmpty())
            spoken += QStringLiteral(", ") + row.earlier;
        item->setData(spoken, Qt::AccessibleTextRole);
        item->setToolTip(row.earlier.isEmpty() ? row.sentence
                                               : row.sentence + QLatin1Char('\n') + row.earlier);
        items->appendRow(item);
    }
    marking = false;
    updateGeometry();
}

void FindingList::mark(int index) {
    if (currentIndex().row() == index)
        return;
    marking = true;
    setCurrentIndex(index < 0 ? QModelIndex() : items->index(index, 0));
    marking = false;
    viewport()->update();
}

void FindingList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!marking && current.isValid() && onChoose)
        onChoose(current.row());
}

/// Enter goes back to the moment of the finding that is looked at.
void FindingList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                       event->key() == Qt::Key_Space;
    if (!enter || !currentIndex().isValid() || !onChoose)
        return QListView::keyPressEvent(event);
    onChoose(currentIndex().row());
}

void FindingList::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    scheduleDelayedItemsLayout();
}

QSize FindingList::sizeHint() const {
    const double scale = quiz::scaleOf(*this);
    const auto count = std::max<int>(fewestRows, std::min<int>(5, static_cast<int>(shown.size())));
    return {200, static_cast<int>(count * rowHeight * scale)};
}

} // namespace tarnel
