#include "window/widgets/mnemonics.h"

#include "window/widgets/plain_caption.h"

#include <QAbstractButton>
#include <QAction>
#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <functional>

namespace tarnel {

namespace {

constexpr const char* letterProperty = "mnemonic";

QString marked(const QString& caption, int place) {
    QString result;
    for (int i = 0; i < caption.size(); ++i) {
        if (i == place || caption[i] == QLatin1Char('&'))
            result += QLatin1Char('&');
        result += caption[i];
    }
    return result;
}

bool serves(QChar letter) {
    return letter.isLetterOrNumber() && letter != QChar(u'ß');
}

/// Chooses the letters of captions that stand together.
class Chooser {
  public:
    Chooser(const QStringList& texts, const QString& taken) : places(texts.size(), -1) {
        for (const QString& text : texts)
            captions << plainCaption(text);
        for (const QChar letter : taken)
            owners[letter.toLower()] = nobody;
    }

    std::vector<int> choose() {
        const auto count = static_cast<int>(captions.size());
        for (const auto& manner :
             {&Chooser::isNumber, &Chooser::isFirst, &Chooser::beginsWord, &Chooser::any})
            for (int i = 0; i < count; ++i)
                takeFree(i, manner);
        for (int i = 0; i < count; ++i)
            if (places[static_cast<std::size_t>(i)] < 0) {
                asked.clear();
                takeOver(i);
            }
        return places;
    }

  private:
    static constexpr int nobody = -1;
    using Manner = bool (*)(const QString& caption, int place);

    static bool beginsWord(const QString& caption, int place) {
        return place == 0 || !serves(caption[place - 1]);
    }
    static bool isFirst(const QString& caption, int place) {
        return std::none_of(caption.begin(), caption.begin() + place, serves);
    }
    static bool isNumber(const QString& caption, int place) {
        return place > 0 && caption[place].isDigit() && !caption[place - 1].isLetter();
    }

    void give(int caption, int place) {
        places[static_cast<std::size_t>(caption)] = place;
        owners[captions[caption][place].toLower()] = caption;
    }
    void takeFree(int caption, Manner manner) {
        if (places[static_cast<std::size_t>(caption)] >= 0)
            return;
        const QString& text = captions[caption];
        for (int place = 0; place < text.size(); ++place)
            if (serves(text[place]) && manner(text, place) && isFree(text[place]))
                return give(caption, place);
    }
    [[nodiscard]] bool isFree(QChar letter) const { return !owners.contains(letter.toLower()); }
    static bool any(const QString& /*caption*/, int /*place*/) { return true; }
    /// A letter whose owner can do with another.
    bool takeOver(int caption) {
        for (int place = 0; place < captions[caption].size(); ++place) {
            const QChar letter = captions[caption][place].toLower();
            if (!serves(letter) || asked.contains(letter))
                continue;
            asked += letter;
            const auto owner = owners.constFind(letter);
            if (owner == owners.constEnd() || (*owner != nobody && takeOver(*owner))) {
                give(caption, place);
                return true;
            }
        }
        return false;
    }

    QStringList captions;
    std::vector<int> places;
    QHash<QChar, int> owners; ///< of the letters that are given
    QString asked;            ///< letters, in this search
};

void giveItems(const QList<QAction*>& items) {
    QList<QAction*> named;
    QStringList captions;
    for (QAction* item : items)
        if (!item->isSeparator() && item->isVisible()) {
            named << item;
            captions << item->text();
        }
    const std::vector<int> places = mnemonicPlaces(captions);
    for (qsizetype i = 0; i < named.size(); ++i)
        named[i]->setText(marked(plainCaption(captions[i]), places[static_cast<std::size_t>(i)]));
}

/// Items may have changed, and menus among them, whenever a menu is opened.
void giveMenu(QMenu& menu) {
    giveItems(menu.actions());
    for (QAction* item : menu.actions())
        if (QMenu* inner = item->menu(); inner && !inner->property(letterProperty).toBool()) {
            inner->setProperty(letterProperty, true);
            QObject::connect(inner, &QMenu::aboutToShow, inner, [inner] { giveMenu(*inner); });
            giveMenu(*inner);
        }
}

/// What bears a caption: how it is read and written.
struct Captioned {
    QString caption;
    std::function<void(int place)> mark;
};

template <class Widget>
Captioned captioned(Widget& widget) {
    return {plainCaption(widget.text()),
            [&widget, caption = plainCaption(widget.text())](int place) {
                widget.setProperty(letterProperty, caption[place]);
                widget.setText(marked(caption, place));
            }};
}

/// Whether `child` lies on a page in `part` of which one is seen at a time.
bool liesOnPage(const QWidget& child, const QWidget& part) {
    for (const QWidget* up = child.parentWidget(); up && up != &part; up = up->parentWidget())
        if (qobject_cast<const QStackedWidget*>(up))
            return true;
    return false;
}

std::vector<Captioned> captionsIn(QWidget& part) {
    std::vector<Captioned> all;
    for (auto* child : part.findChildren<QWidget*>()) {
        if (liesOnPage(*child, part))
            continue;
        auto* button = qobject_cast<QAbstractButton*>(child);
        auto* label = qobject_cast<QLabel*>(child);
        if (button && !button->text().isEmpty() && !button->property("choice").toBool())
            all.push_back(captioned(*button));
        else if (label && label->buddy())
            all.push_back(captioned(*label));
        else if (auto* tabs = qobject_cast<QTabBar*>(child))
            for (int i = 0; i < tabs->count(); ++i)
                all.push_back({plainCaption(tabs->tabText(i)), [tabs, i](int place) {
                                   tabs->setTabText(i,
                                                    marked(plainCaption(tabs->tabText(i)), place));
                               }});
    }
    return all;
}

} // namespace

std::vector<int> mnemonicPlaces(const QStringList& captions, const QString& taken) {
    return Chooser(captions, taken).choose();
}

QString withMnemonicOf(const QWidget& widget, const QString& caption) {
    const QVariant letter = widget.property(letterProperty);
    if (!letter.isValid())
        return caption;
    return marked(caption,
                  static_cast<int>(caption.indexOf(letter.toChar(), 0, Qt::CaseInsensitive)));
}

void giveMnemonics(QMenuBar& bar) {
    giveItems(bar.actions());
    for (QAction* item : bar.actions())
        if (QMenu* menu = item->menu()) {
            QObject::connect(menu, &QMenu::aboutToShow, menu, [menu] { giveMenu(*menu); });
            giveMenu(*menu);
        }
}

QString giveMnemonics(QWidget& part, const QString& taken) {
    const std::vector<Captioned> all = captionsIn(part);
    QStringList captions;
    for (const Captioned& each : all)
        captions << each.caption;
    const std::vector<int> places = mnemonicPlaces(captions, taken);
    QString given = taken;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (places[i] >= 0) {
            all[i].mark(places[i]);
            given += all[i].caption[places[i]].toLower();
        }
    for (const auto* pages : part.findChildren<QStackedWidget*>())
        for (int i = 0; i < pages->count(); ++i)
            giveMnemonics(*pages->widget(i), given);
    return given;
}

QString mnemonicsOf(const QMenuBar& bar) {
    QString letters;
    for (const QAction* item : bar.actions())
        if (const qsizetype mark = item->text().indexOf(QLatin1Char('&')); mark >= 0)
            letters += item->text()[mark + 1];
    return letters;
}

} // namespace tarnel
