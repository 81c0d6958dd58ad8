#include "window/widgets/quiz_list.h"

#include "look/look.h"
#include "window/widgets/quiz_measures.h"

#include <QKeyEvent>
#include <QStyleOption>

namespace tarnel {

namespace {

constexpr int pageOfEntries = 6;
constexpr int typingPause = 1200; ///< ms after which typing starts anew
constexpr double arrowWidth = 8;
constexpr double inset = 10;

/// Whether a key writes a character here, which then is no shortcut of the window.
bool writes(const QKeyEvent& event) {
    const auto others = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return !others && !event.text().isEmpty() && event.text().at(0).isLetterOrNumber();
}

} // namespace

QuizList::QuizList(QWidget* parent) : QComboBox(parent) {
    setProperty("quiz", true);
    setFocusPolicy(Qt::StrongFocus);
    constexpr int entriesShown = 12;
    setMaxVisibleItems(entriesShown);
    connect(this, &QComboBox::activated, this, [this] { confirm(); });
}

void QuizList::setEntries(const QStringList& entries) {
    if (entries == shown)
        return;
    shown = entries;
    clear();
    addItems(entries);
    updateGeometry();
}

void QuizList::leaveRoomBehind(const QString& word) {
    wordBehind = word;
}

QSize QuizList::sizeHint() const {
    const double scale = quiz::scaleOf(*this);
    const int aroundEntry = qRound((3 * inset + arrowWidth) * scale);
    const int aroundTold =
        qRound(quiz::verdictMargins * scale) + fontMetrics().horizontalAdvance(wordBehind);
    int widest = 0;
    for (int i = 0; i < count(); ++i)
        widest = qMax(widest, fontMetrics().horizontalAdvance(itemText(i)) +
                                  (i > 0 ? qMax(aroundEntry, aroundTold) : aroundEntry));
    return {widest, qRound(quiz::answerHeight * scale)};
}

void QuizList::confirm() {
    if (onConfirm)
        onConfirm(currentIndex());
}

void QuizList::browse(int entry) {
    if (count() == 0)
        return;
    const int there = qBound(0, entry, count() - 1);
    setCurrentIndex(there);
    if (onBrowse)
        onBrowse(there);
}

bool QuizList::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && writes(static_cast<QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QComboBox::event(event);
}

bool QuizList::step(int key) {
    switch (key) {
    case Qt::Key_Up:
        browse(currentIndex() - 1);
        return true;
    case Qt::Key_Down:
        browse(currentIndex() + 1);
        return true;
    case Qt::Key_PageUp:
        browse(currentIndex() - pageOfEntries);
        return true;
    case Qt::Key_PageDown:
        browse(currentIndex() + pageOfEntries);
        return true;
    case Qt::Key_Home:
        browse(0);
        return true;
    case Qt::Key_End:
        browse(count() - 1);
        return true;
    default:
        return false;
    }
}

void QuizList::keyPressEvent(QKeyEvent* event) {
    const bool opens = event->key() == Qt::Key_Space || event->key() == Qt::Key_F4 ||
                       event->modifiers() == Qt::AltModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentIndex() > 0)
        return confirm();
    if (enter || (opens && event->key() != Qt::Key_Alt))
        return showPopup();
    if (step(event->key()))
        return;
    if (writes(*event))
        return type(event->text());
    event->ignore();
}

void QuizList::type(const QString& character) {
    if (!sinceTyped.isValid() || sinceTyped.elapsed() > typingPause)
        typed.clear();
    sinceTyped.start();
    typed += character;
    int entry = findText(typed, Qt::MatchStartsWith);
    const bool digit = character.at(0).isDigit();
    if (entry < 0 && !digit) {
        typed = character;
        entry = findText(typed, Qt::MatchStartsWith);
    }
    if (entry < 0 && digit && findText(QStringLiteral("\\d"), Qt::MatchRegularExpression) < 0)
        entry = character.toInt() < count() ? character.toInt() : -1;
    else if (entry < 0)
        typed.chop(1); // a number goes on from the digits that are right
    if (entry > 0)
        browse(entry);
}

void QuizList::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

/// What only asks to select is no answer.
void QuizList::initStyleOption(QStyleOptionComboBox* option) const {
    QComboBox::initStyleOption(option);
    option->palette.setColor(QPalette::ButtonText, currentIndex() > 0
                                                       ? look::colours().ink
                                                       : look::colours().secondaryInk);
}

} // namespace tarnel
