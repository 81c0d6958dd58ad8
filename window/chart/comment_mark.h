#pragma once

#include <QLabel>

namespace tarnel {

/// `CommentMark`: the sign before a comment. It blinks by its paint alone: to show and hide it
/// would tell a screen reader so twice a second.
class CommentMark : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    void setLit(bool shines) {
        if (lit == shines)
            return;
        lit = shines;
        update();
    }
    [[nodiscard]] bool isLit() const { return lit; }

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (lit)
            QLabel::paintEvent(event);
    }

  private:
    bool lit = false;
};

} // namespace tarnel
