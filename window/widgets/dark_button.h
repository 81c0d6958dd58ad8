#pragma once

#include <QAbstractButton>

namespace tarnel {

/// `DarkButton`: a small key on the dark panel with its word on it.
class DarkButton : public QAbstractButton {
    Q_OBJECT

  public:
    explicit DarkButton(const QString& text, QWidget* parent = nullptr);

    /// Of its type.
    void setScale(double scale);
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QFont wordFont() const;

    double scale = 1;
};

} // namespace tarnel
