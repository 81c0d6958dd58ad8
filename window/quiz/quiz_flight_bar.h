#pragma once

#include "window/quiz/quiz_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

class QBoxLayout;
class QPushButton;

namespace tarnel {

enum class Sign;

/// `QuizFlightBar`: what a student needs while he flies a question or watches its solution: start,
/// speeds, the replay's place and the way back. To watch, one line is enough if it is wide.
class QuizFlightBar : public QWidget {
    Q_OBJECT

  public:
    QuizFlightBar(const QuizModel& quizModel, FormBinding& binding, QWidget* parent);

    /// The height that it takes at a width, with the speeds.
    [[nodiscard]] int heightIn(int width);
    /// The height without the speeds.
    [[nodiscard]] int briefHeight() const;
    /// Leaves the speeds out, or takes them in again: a low window has no room for them beside a
    /// solution.
    void setBrief(bool brief);
    /// What the student uses first: start in his own flight, else the way back.
    [[nodiscard]] QWidget* firstControl() const;

  private:
    [[nodiscard]] QBoxLayout* makeFlightRow(FormBinding& binding);
    [[nodiscard]] QBoxLayout* makeReplayRow(FormBinding& binding);
    void addSign(QBoxLayout& row, FormBinding& binding, OptionButton& control, Sign sign);
    void follow();
    void placeSpeeds(bool besideStart);

    QuizModel model;
    QBoxLayout* flightRow = nullptr;
    QBoxLayout* replayRow = nullptr;
    QWidget* speeds = nullptr;
    QLabel* clock = nullptr;
    bool speedsBesideStart = true;
    QPushButton* startButton = nullptr;
    QPushButton* backButton = nullptr;
};

} // namespace tarnel
