#pragma once

#include "window/access/part.h"

class QComboBox;

namespace tarnel {

/// `ListAccess`: a list that opens, named by what it chooses; its choice is its description and its
/// value. Qt's own is named by its choice on AT-SPI. Each entry can be pressed, open or not, which
/// is a click on it in the opened list.
class ListAccess : public Whole {
  public:
    explicit ListAccess(QComboBox& list);

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

  protected:
    [[nodiscard]] int partCount() const override;
    [[nodiscard]] Part* makePart(int index) const override;

  private:
    [[nodiscard]] bool isOpen() const;

    QComboBox& list;
};

} // namespace tarnel
