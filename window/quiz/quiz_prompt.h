#pragma once

#include <QLabel>

namespace tarnel {

/// `QuizPrompt`: what a row asks. It wants its text in one line, takes no more, and has room for
/// two at least.
class QuizPrompt : public QLabel {
    Q_OBJECT

  public:
    explicit QuizPrompt(QWidget* parent);

    /// What asks for nothing any more is shown dim.
    void tell(const QString& text, bool shut);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    [[nodiscard]] int longestWord() const;
    void limit();
};

} // namespace tarnel
