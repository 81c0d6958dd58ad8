#include "support/temporary_folder.h"
#include "window/chart/chart_finder_dialog.h"
#include "window/chart/chart_keyboard.h"
#include "window/chart/chart_view.h"
#include "window/chart/spoken_place.h"
#include "window/frame/instrument_panel.h"
#include "window/frame/qt_outside_world.h"
#include "window/help/help_window.h"
#include "window/student_fixture.h"

#include <QAction>
#include <QCheckBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

namespace tarnel {
namespace {

/// A student who has no mouse, and reads what a screen reader says.
class WithoutMouse : public Student {
  protected:
    void openInFront(const StringTable& texts = englishTable()) {
        open(texts);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    void press(int key, Qt::KeyboardModifiers with = {}, int times = 1) {
        QWidget* focus = QApplication::focusWidget();
        for (int i = 0; i < times; ++i)
            QTest::keyClick(focus ? focus : window.get(), static_cast<Qt::Key>(key), with);
        settle();
    }
    std::string said() { return chart().keyboard().words().toStdString(); }
    ChartView& chart() { return *window->findChild<ChartView*>(); }
    UserControl2& sim() { return form->UserControl11; }
    std::string aircraft() {
        const SplitPosition& at = sim().aircraft.position;
        return told(at.latitude.minutes, at.longitude.minutes);
    }
    template <class... Value>
    static std::string told(const Value&... value) {
        return (... + (std::to_string(value) + " "));
    }
    /// Fails where more than `without` captions have no letter, or two the same.
    static void expectLetters(const QStringList& captions, int without = 0) {
        QString taken;
        for (const QString& caption : captions) {
            const qsizetype mark = QString(caption).replace("&&", "--").indexOf('&');
            if (mark < 0 && --without >= 0)
                continue;
            EXPECT_GE(mark, 0) << qPrintable(caption);
            const QChar letter = caption[mark + 1].toLower();
            EXPECT_FALSE(taken.contains(letter)) << qPrintable(caption);
            taken += letter;
        }
    }
    static void expectLettersBelow(const QList<QAction*>& items) {
        QStringList captions;
        for (const QAction* item : items) {
            if (!item->isSeparator())
                captions << item->text();
            if (item->menu()) {
                emit item->menu()->aboutToShow();
                expectLettersBelow(item->menu()->actions());
            }
        }
        expectLetters(captions);
    }
    template <class Part>
    static QStringList captionsOf(const QWidget& part) {
        QStringList captions;
        for (const auto* each : part.findChildren<Part*>())
            if (each->isVisibleTo(&part) && !each->text().isEmpty())
                captions << each->text();
        return captions;
    }

    const TemporaryFolder folder;
};

TEST_F(WithoutMouse, FindsALetterOfItsOwnInEveryMenuInBothLanguages) {
    for (const StringTable* texts : {&germanTable(), &englishTable()}) {
        open(*texts);
        expectLettersBelow(window->menuBar()->actions());
        const QStringList bar = [this] {
            QStringList captions;
            for (const QAction* item : window->menuBar()->actions())
                captions << item->text();
            return captions;
        }();
        for (const char* page : {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
            turnTo(page);
            auto& tabs = find<QTabBar>("Pages");
            QStringList captions = bar + captionsOf<QAbstractButton>(*tabs.parentWidget());
            for (int i = 0; i < tabs.count(); ++i)
                captions << tabs.tabText(i);
            constexpr int alike = 3; // figures of speeds and scales, and stations' switches
            expectLetters(captions, alike);
        }
        ChartFinderDialog finder(form->UserControl11, form->boxes, {}, window.get());
        expectLetters(captionsOf<QAbstractButton>(finder));
    }
}

TEST_F(WithoutMouse, PlacesAndTurnsTheAircraftAndHearsWhere) {
    openInFront();
    const std::string before = aircraft();
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(chart().hasFocus());
    EXPECT_EQ(said(), spokenPosition(sim().aircraft.published(), englishTable()).toStdString());
    press(Qt::Key_PageDown);
    press(Qt::Key_Left, Qt::ShiftModifier, 2);
    press(Qt::Key_Right, Qt::ControlModifier, 3);
    const std::string vor = sim().slot(Slot::vor1).name;
    EXPECT_EQ(said(), "270\u00b0, 9.7 NM from " + vor);
    press(Qt::Key_Escape);
    press(Qt::Key_Return);
    EXPECT_EQ(aircraft(), before);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_THAT(said(), testing::StartsWith("Aircraft placed: "));
    EXPECT_NE(aircraft(), before);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(aircraft(), before);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageUp);
    press(Qt::Key_Left, Qt::ShiftModifier, 2);
    press(Qt::Key_Right, Qt::ControlModifier, 3);
    press(Qt::Key_Return);
    const auto stations = [this] {
        return QAccessible::queryAccessibleInterface(&chart())
            ->text(QAccessible::Description)
            .toStdString();
    };
    EXPECT_THAT(stations(), testing::StartsWith("270\u00b0, 9.7 NM from VOR 1 " + vor + ", "));
    form->chartPage.hide.click();
    EXPECT_EQ(stations(), "") << "a hidden aircraft is nowhere";
    form->chartPage.hide.click();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(aircraft(), before);
    press(Qt::Key_2, Qt::ControlModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(said(), "heading 010");
    QTest::mouseMove(&chart(), {5, 5}); // a pointer that happens to pass
    press(Qt::Key_Return);
    EXPECT_EQ(sim().aircraft.trueHeading, 10);
    press(Qt::Key_Space);
    EXPECT_TRUE(form->flight.flies());
    press(Qt::Key_Up);
    EXPECT_THAT(said(), testing::StartsWith("Not now"));
}

TEST_F(WithoutMouse, DrawsTheWindAndCarriesAStation) {
    openInFront();
    turnTo("PageWind");
    find("Command3").setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(chart().hasFocus());
    press(Qt::Key_Escape);
    EXPECT_FALSE(sim().mouse.windTool());
    find("Command3").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Up, Qt::ShiftModifier, 2);
    press(Qt::Key_Left);
    EXPECT_EQ(said(), "wind 359 degrees, 20 knots");
    press(Qt::Key_Return);
    EXPECT_EQ(told(sim().wind.direction, sim().wind.speed), told(359.0, 20));

    find<QAction>("editChart").trigger();
    settle();
    chart().setFocus();
    const SplitPosition before = sim().stations[0].position;
    press(Qt::Key_PageDown);
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    EXPECT_NE(sim().stations[0].position, before);
    QTest::mouseMove(&chart(), {40, 40});
    find("Command6").setFocus(); // what goes elsewhere lets go
    EXPECT_FALSE(sim().mouse.holds());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(sim().stations[0].position, before);
    press(Qt::Key_Escape);
    EXPECT_EQ(sim().c_mapedit, 0);
}

TEST_F(WithoutMouse, LeavesAnExerciseByEscapeAndIsAskedWhereAnAnswerWouldBeLost) {
    openInFront();
    find<QAction>("qdm").trigger();
    settle();
    chart().setFocus();
    press(Qt::Key_Home); // where the aircraft is stays the question
    EXPECT_THAT(said(), testing::StartsWith("Not now"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->exercise.runs());
    EXPECT_TRUE(world.asked.empty());
    find<QAction>("qdm").trigger();
    settle();
    press(Qt::Key_1);
    world.answer = false;
    press(Qt::Key_Escape);
    EXPECT_TRUE(form->exercise.runs());
    EXPECT_EQ(world.asked.size(), 1U);
    world.answer = true;
    press(Qt::Key_Escape);
    EXPECT_FALSE(form->exercise.runs());
}

// From the chart to what is below it, and from there to the panel beside them.
TEST_F(WithoutMouse, GoesByTabFromPartToPart) {
    openInFront();
    for (const auto& [item, below] : {std::pair("", "strip"), {"qdm", "quiz"}, {"wind", "quiz"}}) {
        if (*item) {
            find<QAction>(item).trigger();
            settle();
        }
        chart().setFocus(Qt::TabFocusReason);
        QStringList parts{"chart"};
        for (int i = 0; i < 90 && parts.size() < 4; ++i) {
            press(Qt::Key_Tab);
            const QWidget* focus = QApplication::focusWidget();
            const auto within = [focus](const QWidget& part) {
                return &part == focus || part.isAncestorOf(focus);
            };
            const QString part = within(chart())                                  ? "chart"
                                 : within(find<QWidget>("QAform1"))               ? "quiz"
                                 : within(*window->findChild<InstrumentPanel*>()) ? "panel"
                                                                                  : "strip";
            if (part != parts.last())
                parts << part;
        }
        EXPECT_EQ(parts.mid(0, 4), QStringList({"chart", below, "panel", "chart"})) << item;
        if (*item)
            press(Qt::Key_Escape);
    }
}

TEST_F(WithoutMouse, OpensMenusAndTheWholeScreenAndKeepsSpaceForWhatNeedsIt) {
    openInFront();
    auto& box = find<QCheckBox>("Check4");
    box.setFocus();
    press(Qt::Key_Space);
    EXPECT_FALSE(form->flight.flies() || box.isChecked());
    press(Qt::Key_F11);
    EXPECT_TRUE(window->isFullScreen());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window->isFullScreen());
    press(Qt::Key_F10);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "mnufile");
    QTest::keyClick(menu, Qt::Key_Escape);
}

TEST_F(WithoutMouse, ReadsAllKeysOfTheActionsInAList) {
    openInFront();
    find<QAction>("keyList").trigger();
    auto& list = *find<QWidget>("KeyList").findChild<QTreeWidget*>();
    QStringList rows;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        for (int j = 0; j < list.topLevelItem(i)->childCount(); ++j)
            rows << list.topLevelItem(i)->child(j)->text(0) + '=' +
                        list.topLevelItem(i)->child(j)->text(1);
    EXPECT_TRUE(rows.contains("Start / Stop=M, Space"));
    EXPECT_TRUE(rows.contains("Move by 5 NM, turn by 10 degrees="
                              "Shift+Left, Shift+Right, Shift+Up, Shift+Down"));
    const QString all = rows.join('\n');
    for (const auto* action : window->findChildren<QAction*>())
        for (const QKeySequence& key : action->shortcuts())
            EXPECT_TRUE(all.contains(key.toString(QKeySequence::NativeText)))
                << qPrintable(action->text());
}

// A dialog keeps the user from the window behind it, and not from its help.
TEST_F(WithoutMouse, GetsHelpInDialogsAndSmallWindows) {
    openInFront();
    for (const auto& [item, page] :
         {std::pair("mnuNewChart", "chart"), {"keyList", "keys"}, {"frmBuchPDF", "index"}}) {
        find<QAction>(item).trigger();
        settle();
        QWidget* dialog = QApplication::activeWindow();
        ASSERT_NE(dialog, window.get()) << item;
        QTest::keyClick(dialog->focusWidget(), Qt::Key_F1);
        EXPECT_EQ(world.opened.back(), std::string("Hilfe/en/") + page + ".html as help") << item;
        dialog->close();
    }
    QtOutsideWorld desktop(englishTable(), (folder.at / "settings.ini").string());
    QTimer::singleShot(0, [&desktop] {
        QWidget* box = QApplication::activeModalWidget();
        desktop.showHelp(TARNEL_APPLICATION_FOLDER "/Hilfe/en/keys.html");
        for (QWidget* help : QApplication::topLevelWidgets())
            if (qobject_cast<HelpWindow*>(help)) {
                EXPECT_EQ(help->windowHandle()->transientParent(), box->windowHandle());
            }
        box->close();
    });
    desktop.messageBox(BoxKind::notice, "title", "text");
}

} // namespace
} // namespace tarnel
