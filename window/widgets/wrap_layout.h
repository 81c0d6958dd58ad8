#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace tarnel {

/// `WrapLayout`: lays its items in lines from left to right, as many to a line as fit. In columns,
/// all have the width of the widest, so that they stand below each other; in a flow, the last item
/// of a line that wants to grow takes what is left of it.
class WrapLayout : public QLayout {
  public:
    enum class Manner { flowing, inColumns };

    explicit WrapLayout(Manner manner, int gapAcross, int gapDown);
    ~WrapLayout() override;

    void addItem(QLayoutItem* item) override;
    void addLayout(QLayout* layout);
    [[nodiscard]] int count() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& area) override;

  private:
    /// What stands side by side.
    struct Line {
        std::vector<QLayoutItem*> items;
        int width = 0;
        int height = 0;
    };

    [[nodiscard]] std::vector<Line> lines(int width) const;
    void place(const Line& line, const QRect& area, int column) const;
    /// The width of a column in an area so wide; 0 in a flow.
    [[nodiscard]] int columnWidth(int width) const;

    Manner manner;
    int across;
    int down;
    std::vector<std::unique_ptr<QLayoutItem>> items;
};

} // namespace tarnel
