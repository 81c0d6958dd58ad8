#pragma once

#include "window/quiz/quiz_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <vector>

class QStackedLayout;

namespace tarnel {

class QuizFlightBar;
class QuizFrame;
class QuizRow;

/// `QuizPanel`: shows the running exercise below the chart, and takes it by keyboard: digits answer
/// the row that has the keyboard, or the first open one, and Enter goes on.
class QuizPanel : public QWidget {
    Q_OBJECT

  public:
    QuizPanel(const QuizModel& quizModel, FormBinding& links, QWidget* parent = nullptr);

    /// To be called after the binding's `refresh`.
    void refresh();

    /// Whether an exercise runs, so that the panel is to be shown.
    [[nodiscard]] bool runs() const { return active != nullptr; }
    /// The height that it wants at a width. An exercise never wants less for a question than for
    /// one before, so that the window keeps still.
    [[nodiscard]] int wantedHeight(int width) const;
    /// A number that differs when `runs` or `wantedHeight` may do so; cheap.
    [[nodiscard]] int contents() const { return shownHeight; }

    /// Gives its buttons letters for Alt that are not in `taken`.
    void giveLetters(const QString& taken);

    /// Does what a key means to the exercise that runs. False if it means nothing.
    bool takeKey(const QKeyEvent& event);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QuizFrame* runningFrame();
    void show(QuizFrame* frame);
    void chain(const QuizFrame& frame);
    void measure();
    void followQuestion();
    const QuizRow* rowJustClosed();
    void focusAnswer(const QuizRow* after);
    void focusFlight();
    bool enter();

    QuizModel model;
    FormBinding& binding;
    std::vector<QuizFrame*> frames;
    QStackedLayout* pages = nullptr;
    QuizFlightBar* flightBar = nullptr;
    QuizFrame* active = nullptr;
    QString lettersTaken; ///< by menus and the flight bar
    std::uint64_t shown = 0;
    int shownHeight = 0;
    int tallest = 0; ///< of the questions of this exercise, at the present width
    int tallestWidth = 0;
    bool folded = false;
    bool flew = false; ///< the student, when last looked
    bool flightAwaitsFocus = false;
    std::uint64_t question = 0;
    std::vector<bool> wasOpen; ///< by row
};

} // namespace tarnel
