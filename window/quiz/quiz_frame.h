#pragma once

#include "exercises/exercise_panel.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;

namespace tarnel {

class QuizFlightBar;
class QuizRow;

/// `QuizFrame`: one of the exercises' frames: title and statistic, task, sub-questions, buttons. In
/// the student's own flight a bar for the flight takes the place of the sub-questions; while a
/// solution can be watched it stands below them, and they take little room.
class QuizFrame : public QWidget {
    Q_OBJECT

  public:
    QuizFrame(ExercisePanel& panel, const StringTable& texts, FormBinding& binding,
              QWidget* parent);

    [[nodiscard]] ExercisePanel& panel() const { return asked; }
    [[nodiscard]] bool folded() const { return asked.folded(); }
    /// Whether every sub-question has got its answer.
    [[nodiscard]] bool answered() const;
    /// All texts of the question, without the answers.
    [[nodiscard]] QString question() const;

    /// Shows `bar` while there is a flight to fly or to watch.
    void host(QuizFlightBar* bar);
    /// The height that all of it takes at a width.
    [[nodiscard]] int wantedHeight(int width) const;
    /// Takes up what has changed, and lays out anew if it takes other room. True if it does.
    /// `flies` and `watches` tell what there is of a flight.
    bool follow(bool flies, bool watches);

    [[nodiscard]] const std::vector<QuizRow*>& rows() const { return questions; }
    /// The row of a widget, or else the first open one; null if none is open.
    [[nodiscard]] QuizRow* rowOf(QWidget* widget) const;
    /// The open row that is next after `row`, from the start again after the last; null if none.
    [[nodiscard]] QuizRow* openRowAfter(const QuizRow* row) const;
    [[nodiscard]] QPushButton* nextButton() const { return next; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* label(const char* kind = nullptr);
    QPushButton* button(CommandButton& control, FormBinding& binding);
    void makeHeader(FormBinding& binding);
    void makeRows(FormBinding& binding);
    void makeButtons(FormBinding& binding);
    [[nodiscard]] QString content() const;
    void followTitle();
    void followFlight();
    [[nodiscard]] bool hasBar() const { return flightBar && (flown || watched); }
    void setNextPrimary(bool primary);

    /// Places everything in a card of `size`, or only measures. The height that is needed.
    int arrange(QSize size, bool place) const;
    [[nodiscard]] int watchedHeight(int frameWidth) const;
    int arrangeHeader(int top, int width, bool place, bool counts) const;
    int arrangeTexts(int top, int width, bool place) const;
    int arrangeRows(int top, int width, int bottom, bool place) const;
    void placeButtons(int top, int width) const;
    [[nodiscard]] int promptWidth(int width) const;
    [[nodiscard]] int headerWidth(bool counts) const;
    [[nodiscard]] int buttonsWidth() const;
    [[nodiscard]] int buttonHeight() const;
    [[nodiscard]] bool boxBesideButtons(int width) const;
    [[nodiscard]] int scaled(int pixels) const;

    ExercisePanel& asked;
    QLabel* title = nullptr;
    QLabel* place = nullptr; ///< which question of how many
    QLabel* statistic = nullptr;
    QLabel* notice = nullptr;
    QLabel* task = nullptr;
    QLabel* known = nullptr;
    QLabel* rule = nullptr;
    std::vector<QuizRow*> questions;
    QPushButton* next = nullptr;
    QPushButton* solution = nullptr;
    QPushButton* fly = nullptr;
    QPushButton* cancel = nullptr;
    QCheckBox* random = nullptr;
    QuizFlightBar* flightBar = nullptr;
    const StringTable& texts;
    bool flown = false;   ///< the student's own flight is up
    bool watched = false; ///< a solution can be watched
    QString shownContent;
    mutable int headerLine = 0; ///< where the line below the header stands
};

} // namespace tarnel
