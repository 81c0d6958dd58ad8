#pragma once

#include "exercises/exercise_panel.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <optional>
#include <vector>

class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

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

    /// Shows `bar` while there is a flight to fly or to watch.
    void host(QuizFlightBar* bar);
    /// The height that all of it takes at a width.
    [[nodiscard]] int wantedHeight(int width) const;
    /// Takes up what has changed. True if it may want other room now. `flies` and `watches` tell
    /// what there is of a flight.
    bool follow(bool flies, bool watches);
    /// In a height too low for all of it the speeds of a replay give way.
    void spareRoom();

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
    /// What the widgets were last made for.
    struct Shown {
        std::uint64_t revision = 0;
        bool flown = false;   ///< the student's own flight is up
        bool watched = false; ///< a solution can be watched
        bool operator==(const Shown&) const = default;
    };

    QLabel* label(const char* kind = nullptr);
    QPushButton* button(CommandButton& control, FormBinding& binding);
    [[nodiscard]] QVBoxLayout* makeHeader(FormBinding& binding);
    void addTexts(QVBoxLayout& column);
    [[nodiscard]] QWidget* makeRows(FormBinding& binding);
    [[nodiscard]] QLayout* makeButtons(FormBinding& binding);
    [[nodiscard]] QString question() const;
    void followTexts();
    void followFlight();
    void setNextPrimary(bool primary);
    [[nodiscard]] int watchedHeight(int frameWidth, int heightOfAll) const;

    ExercisePanel& asked;
    const StringTable& texts;
    QLabel* title = nullptr;
    QLabel* place = nullptr; ///< which question of how many
    QLabel* statistic = nullptr;
    QLabel* notice = nullptr;
    QLabel* task = nullptr;
    QLabel* known = nullptr;
    QLabel* wind = nullptr;
    QLabel* rule = nullptr;
    QWidget* questionArea = nullptr;
    QGridLayout* grid = nullptr;
    std::vector<QuizRow*> questions;
    QVBoxLayout* barPlace = nullptr;
    QPushButton* next = nullptr;
    QPushButton* solution = nullptr;
    QPushButton* fly = nullptr;
    QPushButton* cancel = nullptr;
    QCheckBox* random = nullptr;
    QCheckBox* mistakes = nullptr;
    QuizFlightBar* flightBar = nullptr;
    std::optional<Shown> shown;
};

} // namespace tarnel
