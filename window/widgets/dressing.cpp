#include "window/widgets/dressing.h"

#include "look/look.h"
#include "window/widgets/control_style.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QPalette>
#include <QTranslator>

namespace tarnel {

void dressApplication(const StringTable& texts, const QString& applicationFolder) {
    QApplication::setStyle(new ControlStyle);
    QApplication::setFont(look::font(look::bodyType));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, look::accent);
    palette.setColor(QPalette::Window, look::desktop);
    palette.setColor(QPalette::WindowText, look::ink);
    QApplication::setPalette(palette);
    QApplication::setApplicationDisplayName(textOf(texts, Text::windowTitle));
    QApplication::setWindowIcon(QIcon(applicationFolder + QStringLiteral("/tarnel.png")));
}

void translateDialogs(const StringTable& texts) {
    auto* translator = new QTranslator(QApplication::instance());
    const QString language = texts.isGerman() ? QStringLiteral("de") : QStringLiteral("en");
    if (translator->load(QStringLiteral("qtbase_") + language,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

} // namespace tarnel
