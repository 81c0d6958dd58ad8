#pragma once

#include "window/debrief/debrief_model.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;

namespace tarnel {

class FindingList;
class TaskChooser;

/// `DebriefCard`: what is found in a flight, worst first, in the place of quiz and strip; where no
/// task is known, what it is held to is chosen there.
class DebriefCard : public QWidget {
    Q_OBJECT

  public:
    DebriefCard(const DebriefModel& debriefModel, FormBinding& links, QWidget* parent = nullptr);

    std::function<void()> onFlyAgain; ///< the keyboard is wanted where the flight starts

    void refresh();
    /// Gives the keyboard to what is used first.
    void takeKeyboard();
    /// The height that it wants at a width, and that with which it does.
    [[nodiscard]] int wantedHeight(int width) const;
    [[nodiscard]] int leastHeight(int width) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QLayout* makeHead();
    QWidget* makePages(FormBinding& binding);
    QLayout* makeActions(FormBinding& binding);
    QPushButton* button(CommandButton& control, FormBinding& binding);
    void showFindings();
    void announce();
    [[nodiscard]] int heightWith(int width, int page) const;

    DebriefModel model;
    QLabel* title = nullptr;
    QLabel* detail = nullptr;
    QLabel* earlier = nullptr; ///< the score of the first attempt beside it
    QLabel* score = nullptr;
    QStackedWidget* pages = nullptr;
    FindingList* findings = nullptr;
    QLabel* nothing = nullptr;
    TaskChooser* chooser = nullptr;
    QLayout* actions = nullptr;
    std::uint64_t shown = 0;
    std::optional<std::size_t> announced;
};

} // namespace tarnel
