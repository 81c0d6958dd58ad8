#pragma once

#include "window/quiz/quiz_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <optional>

class QBoxLayout;
class QPushButton;

namespace tarnel {

enum class Sign;
class SteadyLabel;

/// `QuizFlightBar`: what a student needs while he flies a question or watches its solution: start,
/// speeds, the replay's place and the way back, in as many lines as they need.
class QuizFlightBar : public QWidget {
    Q_OBJECT

  public:
    QuizFlightBar(const QuizModel& quizModel, FormBinding& binding, QWidget* parent);

    /// Leaves the speeds out, or takes them in again: a low window has no room for them beside a
    /// solution.
    void setBrief(bool brief);
    /// The height that leaving them out may have saved.
    [[nodiscard]] int sparedHeight() const;
    /// What the student uses first: start in his own flight, else the way back.
    [[nodiscard]] QWidget* firstControl() const;

  private:
    [[nodiscard]] QLayout* makeReplayRow(FormBinding& binding);
    void addSign(QBoxLayout& row, FormBinding& binding, OptionButton& control, Sign sign);
    void follow();

    QuizModel model;
    QWidget* speeds = nullptr;
    SteadyLabel* clock = nullptr;
    std::optional<Sign> shownSign; ///< on the start button
    QPushButton* startButton = nullptr;
    QPushButton* backButton = nullptr;
};

} // namespace tarnel
