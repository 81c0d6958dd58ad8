#pragma once

class QString;
class QWidget;

namespace tarnel {

/// Has a screen reader say `words` at once, wherever the keyboard is. `from` is of the window that
/// speaks. Nothing happens with no words.
void announce(QWidget& from, const QString& words);

} // namespace tarnel
