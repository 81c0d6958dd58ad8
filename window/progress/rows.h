#pragma once

#include <QString>

class QFrame;
class QHBoxLayout;
class QLabel;
class QLayout;
class QPushButton;
class QVBoxLayout;
class QWidget;

namespace tarnel {

// The parts that the cards with rows of words share.

[[nodiscard]] QVBoxLayout* cardColumn(QWidget& card);
[[nodiscard]] QLayout* cardTitle(const QString& title, const QString& beside, QWidget& card);
[[nodiscard]] QFrame* hairline(QWidget* parent);
/// A sentence in the place of rows.
[[nodiscard]] QLabel* noteLabel(const QString& text, QWidget* parent);
/// A button of accent words with a chevron.
[[nodiscard]] QPushButton* linkButton(const QString& text, QWidget* parent);
/// Two texts below each other that are cut where the room ends.
[[nodiscard]] QVBoxLayout* twoLines(const QString& first, const QString& second, QWidget* parent);
/// Takes all out of a layout and deletes it.
void emptyRows(QLayout& rows);

} // namespace tarnel
