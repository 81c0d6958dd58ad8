#include "window/quiz/quiz_prompt.h"

#include "window/quiz/two_lines.h"

#include <QEvent>
#include <QStyle>

namespace tarnel {

namespace {

constexpr int spared = 2; ///< px that a wrapped label keeps for itself

} // namespace

QuizPrompt::QuizPrompt(QWidget* parent) : QLabel(parent) {
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    QSizePolicy policy = sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Expanding);
    setSizePolicy(policy);
}

void QuizPrompt::tell(const QString& text, bool shut) {
    setText(text);
    if (property("shut").toBool() != shut) {
        setProperty("shut", shut);
        style()->polish(this);
    }
    limit();
}

QSize QuizPrompt::sizeHint() const {
    ensurePolished();
    return {fontMetrics().horizontalAdvance(text()) + spared, fontMetrics().height()};
}

QSize QuizPrompt::minimumSizeHint() const {
    ensurePolished();
    return {quiz::twoLineWidth(fontMetrics(), text()) + spared, fontMetrics().height()};
}

void QuizPrompt::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        limit();
}

void QuizPrompt::limit() {
    setMaximumWidth(sizeHint().width());
}

} // namespace tarnel
