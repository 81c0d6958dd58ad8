#pragma once

#include "shell/form_1.h"
#include "window/form_binding.h"

#include <QWidget>

class QBoxLayout;
class QPushButton;

namespace tarnel {

enum class Sign;

/// `QuizFlightBar`: what a student needs while he flies a question or watches its solution: start,
/// speeds, the replay's place and the way back.
class QuizFlightBar : public QWidget {
    Q_OBJECT

  public:
    QuizFlightBar(Form1& form, FormBinding& binding, QWidget* parent);

    /// What the student uses first: start in his own flight, else the way back.
    [[nodiscard]] QWidget* firstControl() const;

  private:
    void addFlightRow(QBoxLayout& rows, FormBinding& binding);
    void addReplayRow(QBoxLayout& rows, FormBinding& binding);
    void addSign(QBoxLayout& row, FormBinding& binding, OptionButton& control, Sign sign);
    void follow();

    Form1& form;
    QPushButton* startButton = nullptr;
    QPushButton* backButton = nullptr;
};

} // namespace tarnel
