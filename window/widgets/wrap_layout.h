#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace tarnel {

/// `WrapLayout`: lays widgets in lines from left to right, as many to a line as fit. In columns,
/// all have the width of the widest, so that they stand below each other.
class WrapLayout : public QLayout {
  public:
    enum class Manner { flowing, inColumns };

    explicit WrapLayout(Manner manner, int gapAcross, int gapDown);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] QSize sizeHint() const override;
    void setGeometry(const QRect& area) override;

  private:
    /// Gives each item its place in `area`, or only measures. The height that is needed.
    int layOut(const QRect& area, bool place) const;
    /// The width of a column in an area so wide.
    [[nodiscard]] int columnWidth(int width) const;

    Manner manner;
    int across;
    int down;
    std::vector<std::unique_ptr<QLayoutItem>> items;
};

} // namespace tarnel
