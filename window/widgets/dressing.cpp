#include "window/widgets/dressing.h"

#include "look/look.h"
#include "window/widgets/control_style.h"
#include "window/widgets/text_of.h"

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include <algorithm>

namespace tarnel {

namespace {

void takeColours() {
    look::useColours(look::coloursFor(QApplication::palette()));
}

/// Looks at what Qt tells the application.
class DesktopWatch : public QObject {
  public:
    DesktopWatch(QObject& owner, std::function<void()> dressing)
        : QObject(&owner), dress(std::move(dressing)) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool changes = event->type() == QEvent::ApplicationPaletteChange ||
                             event->type() == QEvent::ApplicationFontChange;
        if (watched == qApp && changes) {
            takeColours();
            dress();
        }
        return false;
    }

  private:
    std::function<void()> dress;
};

} // namespace

void dressApplication(const StringTable& texts, const QString& applicationFolder) {
    QApplication::setStyle(new ControlStyle);
    takeColours();
    if (QGuiApplication::platformName() == QLatin1String("offscreen"))
        QApplication::setFont(look::font(look::bodyType));
    QApplication::setApplicationDisplayName(textOf(texts, Text::windowTitle));
    QApplication::setWindowIcon(QIcon(applicationFolder + QStringLiteral("/tarnel.png")));
}

double desktopTextScale() {
    constexpr double largest = 1.5;
    const double pixels = QFontInfo(QApplication::font()).pixelSize();
    return std::clamp(pixels / look::bodyType, 1.0, largest);
}

void followDesktop(QObject& owner, std::function<void()> dress) {
    dress();
    new DesktopWatch(owner, std::move(dress));
}

void translateDialogs(const StringTable& texts) {
    auto* translator = new QTranslator(QApplication::instance());
    const QString language = texts.isGerman() ? QStringLiteral("de") : QStringLiteral("en");
    if (translator->load(QStringLiteral("qtbase_") + language,
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(translator);
}

} // namespace tarnel
