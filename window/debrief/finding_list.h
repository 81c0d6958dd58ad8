#pragma once

#include "window/debrief/finding_rows.h"

#include <QListView>

#include <functional>
#include <vector>

class QStandardItemModel;

namespace tarnel {

/// Paints findings in columns: sign, sentence, the first attempt's value, verdict and moment. A
/// sentence that is too long takes a second line.
void paintFinding(QPainter& painter, const FindingRow& row, const QRectF& area, double scale,
                  bool chosen, const std::vector<FindingRow>& all);
/// The height that it takes at a width.
[[nodiscard]] double findingHeight(const FindingRow& row, double width, double scale,
                                   const std::vector<FindingRow>& all);

/// `FindingList`: the findings, each a link to its moment.
class FindingList : public QListView {
    Q_OBJECT

  public:
    explicit FindingList(QWidget* parent = nullptr);

    void show(std::vector<FindingRow> findings);
    /// Marks the one that is looked at; -1 for none.
    void mark(int index);
    [[nodiscard]] const std::vector<FindingRow>& rows() const { return shown; }
    [[nodiscard]] QSize sizeHint() const override;

    std::function<void(int)> onChoose;

  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QStandardItemModel* items = nullptr;
    std::vector<FindingRow> shown;
    bool marking = false;
};

} // namespace tarnel
