#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QMenu;
class QMenuBar;
class QWidget;

namespace tarnel {

/// Where in each caption the letter stands that is underlined and opens it with Alt; -1 where all
/// its letters are taken. No letter comes twice, and none of `taken`. The first letter of a caption
/// goes before those of its other words, and these before any other; a number before all.
[[nodiscard]] std::vector<int> mnemonicPlaces(const QStringList& captions,
                                              const QString& taken = {});

/// A caption as a widget takes it, with an ampersand before the letter of the widget's mnemonic if
/// it has one and the caption has that letter.
[[nodiscard]] QString withMnemonicOf(const QWidget& widget, const QString& caption);

/// Gives the menus of the bar their letters, and each menu its items whenever it is opened.
void giveMnemonics(QMenuBar& bar);

/// Gives letters to buttons, tabs and labels of fields in `part`, which are not in `taken`. Pages
/// of which one is seen at a time may share letters; answers have digits. Returns `taken` with the
/// letters given.
QString giveMnemonics(QWidget& part, const QString& taken = {});

/// The letters of a menu bar.
[[nodiscard]] QString mnemonicsOf(const QMenuBar& bar);

} // namespace tarnel
