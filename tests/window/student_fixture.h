#pragma once

#include "look/look.h"
#include "strings/string_table.h"
#include "support/noted_world.h"
#include "window/frame/main_window.h"
#include "window/widgets/dressing.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace tarnel {

/// The window as a student has it, with the time run by hand.
class Student : public testing::Test {
  protected:
    void open(const StringTable& texts = englishTable(), QSize size = {1280, 800}) {
        dressApplication(texts, QString::fromStdString(applicationFolder));
        QApplication::setFont(desktopFont);
        window.reset(); // it shows the form to its end
        form = std::make_unique<Form1>(texts, world, applicationFolder);
        window = std::make_unique<MainWindow>(*form);
        window->resize(size);
        window->show();
        settle();
    }
    void settle() {
        form->Timer1();
        form->Timer1();
        window->refresh();
        QApplication::processEvents();
    }
    void fly(int seconds) {
        for (int i = 0; i < seconds * 3; ++i) {
            form->simulationTimer();
            form->Timer1();
        }
        settle();
    }
    template <class Widget = QAbstractButton>
    Widget& find(const char* name) {
        auto* found = window->findChild<Widget*>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no widget called ") + name);
        return *found;
    }
    /// The one that is shown, where several do the same.
    template <class Widget = QAbstractButton>
    Widget& findShown(const char* name) {
        for (auto* found : window->findChildren<Widget*>(QString::fromLatin1(name)))
            if (found->isVisible())
                return *found;
        throw std::runtime_error(std::string("no widget shown called ") + name);
    }
    void click(const char* name) {
        find(name).click();
        settle();
    }
    /// Turns the strip to a page, as a click on its tab does.
    void turnTo(const char* page) {
        auto& tabs = find<QTabBar>("Pages");
        for (int i = 0; i < tabs.count(); ++i)
            if (tabs.tabData(i).toString() == QLatin1String(page))
                QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(i).center());
        settle();
    }
    void drag(QWidget& widget, QPoint from, QPoint way) {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        QTest::mouseMove(&widget, from + way / 2);
        QTest::mouseMove(&widget, from + way);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, from + way);
        settle();
    }

    std::string applicationFolder = TARNEL_APPLICATION_FOLDER;
    QFont desktopFont = look::font(look::bodyType);
    NotedWorld world;
    std::unique_ptr<Form1> form;
    std::unique_ptr<MainWindow> window;
};

} // namespace tarnel
