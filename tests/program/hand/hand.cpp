#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <functional>

/// A user's hand in a program that is installed: Qt loads it where the environment says so. It
/// answers a question, keeps a practice flight aside, flies, saves the flight and closes the
/// window. What does not come about ends the program with status 9.
class Hand : public QObject {
  public:
    explicit Hand(QObject* parent = nullptr) : QObject(parent) {
        QTimer::singleShot(0, this, [this] { work(); });
    }

  private:
    static void await(const char* what, const std::function<bool()>& condition) {
        constexpr int patience = 30'000;
        if (QTest::qWaitFor(condition, patience))
            return;
        std::fprintf(stderr, "in vain: %s\n", what);
        std::_Exit(9);
    }
    template <class Object>
    Object& find(const char* name) {
        Object* found = nullptr;
        await(name, [&] {
            found = window->findChild<Object*>(QString::fromLatin1(name));
            return found && found->isEnabled();
        });
        return *found;
    }
    void trigger(const char* item) { find<QAction>(item).trigger(); }
    void click(const char* button) {
        await(button, [&] { return find<QAbstractButton>(button).isVisible(); });
        find<QAbstractButton>(button).click();
    }
    /// Whether there is such a file, not empty, below the user's data.
    static bool isKept(const char* name) {
        QDirIterator files(QDir::homePath() + "/.local/share/tarnel", {QString::fromLatin1(name)},
                           QDir::Files, QDirIterator::Subdirectories);
        return files.hasNext() && QFileInfo(files.next()).size() > 0;
    }
    void work() {
        await("window", [this] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->isVisible() && (window = qobject_cast<QMainWindow*>(widget)))
                    return true;
            return false;
        });
        trigger("hldhsi");
        await("question", [this] { return find<QWidget>("Option1").isVisible(); });
        for (int row = 0; row < 4; ++row) {
            QTest::keyClick(window, Qt::Key_1);
            QTest::qWait(100);
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // to the next, which counts
        await("log", [] { return isKept("*.sqlite"); });
        click("Command4");
        trigger("adf1");
        await("practice", [this] { return find<QWidget>("PracticeKeep").isVisible(); });
        click("Command6");
        QTest::qWait(3000);
        click("Command6");
        click("PracticeKeep");
        await("temp.ts", [] { return isKept("temp.ts"); });
        click("PracticeRecall");
        save("mnuSaveSessionAs", QDir::homePath() + "/flight.ts");
        window->close();
    }
    void save(const char* item, const QString& file) {
        QTimer::singleShot(200, this, [file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            await("dialog", [dialog] { return dialog != nullptr; });
            dialog->findChild<QLineEdit*>()->setText(file);
            static_cast<QDialog*>(dialog)->accept();
        });
        trigger(item);
        await("flight.ts", [file] { return QFileInfo::exists(file); });
    }

    QMainWindow* window = nullptr;
};

class HandPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hand.json")

  public:
    QObject* create(const QString&, const QString&) override { return new Hand; }
};

#include "hand.moc"
