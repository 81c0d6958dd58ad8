#pragma once

#include <QCheckBox>

namespace tarnel {

/// `TickBox`: a check box with a rounded blue field.
class TickBox : public QCheckBox {
    Q_OBJECT

  public:
    using QCheckBox::QCheckBox;
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& at) const override {
        return rect().contains(at) && at.x() < sizeHint().width();
    }

  private:
    [[nodiscard]] int fieldSize() const;
};

} // namespace tarnel
