#pragma once

#include "look/look.h"
#include "window/debrief/finding_rows.h"

#include <QListView>

#include <functional>
#include <vector>

class QStandardItemModel;

namespace tarnel {

/// What findings are painted with, in the window or on a page.
struct FindingLook {
    const look::Colours& colours;
    QString family;   ///< of the letters
    double scale = 1; ///< of texts and distances

    [[nodiscard]] QFont type(double pixels, bool bold = false) const;
};

/// Paints findings in columns: sign, sentence, the first attempt's value, verdict and moment. A
/// sentence that is too long takes a second line.
void paintFinding(QPainter& painter, const FindingLook& looks, const FindingRow& row,
                  const QRectF& area, bool chosen, const std::vector<FindingRow>& all);
/// The height that it takes at a width.
[[nodiscard]] double findingHeight(const FindingRow& row, double width, const FindingLook& looks,
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
