#pragma once

#include "core/comments.h"
#include "shell/box_desk.h"
#include "shell/strip_controls.h"
#include "window/widgets/form_binding.h"

#include <QWidget>

#include <initializer_list>
#include <optional>

class QBoxLayout;
class QLabel;
class QScrollArea;

namespace tarnel {

class CommentMark;

/// `CommentCard`: what an author has to say about the present part of the flight, in letters that
/// read well in flight; below it the strip on which it is written, and the practice panel.
class CommentCard : public QWidget {
    Q_OBJECT

  public:
    CommentCard(CommentPanel& commentControls, PracticePanel& practiceControls,
                const Comments& sessionComments, BoxDesk& boxDesk, FormBinding& binding,
                QWidget* parent = nullptr);

    void refresh();

    /// The height that the card wants at a width, 0 if nothing stands on it. It goes by the longest
    /// comment of the session, so that the window keeps still from one comment to the next.
    [[nodiscard]] int wantedHeight(int width) const;
    /// The height that it does with, since its text scrolls.
    [[nodiscard]] int leastHeight(int width) const;

    /// A number that differs when `wantedHeight` may do so; cheap.
    [[nodiscard]] std::size_t contents() const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QWidget* makeComment();
    QWidget* makeWriter();
    QWidget* makePractice();
    void addButtons(QBoxLayout& row, std::initializer_list<CommandButton*> buttons);
    [[nodiscard]] std::size_t lettersOfComments() const;
    [[nodiscard]] int commentHeight(int width) const;
    [[nodiscard]] int heightWith(int commentHeight) const;

    CommentPanel& commentPanel;
    PracticePanel& practicePanel;
    const Comments& comments;
    BoxDesk& boxes;
    FormBinding& binding;
    QWidget* commentRow = nullptr;
    CommentMark* mark = nullptr;
    QLabel* comment = nullptr;
    std::optional<QString> spokenComment;
    QScrollArea* place = nullptr;
    QWidget* writer = nullptr;
    QWidget* practice = nullptr;
};

} // namespace tarnel
