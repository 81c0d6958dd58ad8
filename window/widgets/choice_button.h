#pragma once

#include <QPushButton>

namespace tarnel {

/// `ChoiceButton`: a button of a group, one of which is chosen. It is always wide enough for its
/// text in bold, as it is shown when it is the chosen one. Arrow keys go through the group; from
/// the chosen one they take the choice along, as with all option buttons.
class ChoiceButton : public QPushButton {
    Q_OBJECT

  public:
    /// `padding`: at both sides of the text together, in pixels at text scale 1.
    explicit ChoiceButton(int padding, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    /// A click only asks: what the button stands for says what is chosen.
    void nextCheckState() override {}

  private:
    int paddingAtScale1;
};

/// Shows whether a button is the chosen one. In a group from which something else may be chosen,
/// none may be: Qt's own groups don't let go of the last.
void showChosen(QAbstractButton& button, bool chosen);

} // namespace tarnel
