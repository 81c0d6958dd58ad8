#pragma once

#include <QComboBox>

namespace tarnel {

/// `DarkList`: a selection list for the dark panel.
class DarkList : public QComboBox {
    Q_OBJECT

  public:
    using QComboBox::QComboBox;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace tarnel
