#pragma once

#include <QPushButton>

namespace tarnel {

/// `ChoiceButton`: a button of a group, one of which is chosen. It is always wide enough for its
/// text in bold, as it is shown when it is the chosen one.
class ChoiceButton : public QPushButton {
    Q_OBJECT

  public:
    /// `padding`: at both sides of the text together, in pixels at text scale 1.
    explicit ChoiceButton(int padding, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    int paddingAtScale1;
};

} // namespace tarnel
