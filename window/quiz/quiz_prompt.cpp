#include "window/quiz/quiz_prompt.h"

#include "window/quiz/two_lines.h"
#include "window/widgets/quiz_measures.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace tarnel {

namespace {

constexpr int spared = 2;         ///< px that a wrapped label keeps for itself
constexpr double thirdLine = 0.6; ///< of the width of two lines, with large texts

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

int QuizPrompt::longestWord() const {
    int longest = 0;
    for (const QString& word : text().split(QLatin1Char(' ')))
        longest = std::max(longest, fontMetrics().horizontalAdvance(word));
    return longest;
}

QSize QuizPrompt::minimumSizeHint() const {
    ensurePolished();
    const int two = quiz::twoLineWidth(fontMetrics(), text());
    const int three = std::max(longestWord(), qRound(two * thirdLine));
    return {(quiz::scaleOf(*this) > quiz::largeTexts ? three : two) + spared,
            fontMetrics().height()};
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
