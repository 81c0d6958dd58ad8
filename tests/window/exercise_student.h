#pragma once

#include "support/temporary_folder.h"
#include "window/quiz/quiz_panel.h"
#include "window/student_fixture.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarnel {

/// A student who has an exercise's study file and a recorded flight for its questions.
class ExerciseStudent : public Student {
  protected:
    void SetUp() override {
        for (const auto& entry : std::filesystem::directory_iterator(TARNEL_APPLICATION_FOLDER))
            if (entry.path().filename() != "default")
                std::filesystem::create_symlink(entry.path(), folder / entry.path().filename());
        std::filesystem::create_directories(folder / "default/study");
        std::filesystem::create_directories(folder / "default/sessions");
    }
    ~ExerciseStudent() override {
        window.reset();
        form.reset();
    }

    void writeStudy(const std::string& name, const std::string& text) {
        std::ofstream(folder / "default/study" / name) << text;
    }

    /// Opens the window and starts an exercise whose questions stand in "flight.ts".
    void begin(const std::string& item, const StringTable& texts = englishTable(),
               QSize size = {1280, 800}) {
        applicationFolder = folder.string();
        open(texts, size);
        window->activateWindow();
        settle();
        recordFlight();
        chooseExercise(item);
        quiz = window->findChild<QuizPanel*>();
    }

    /// An exercise by the name of its menu item.
    void chooseExercise(const std::string& item) {
        const auto& items = form->exerciseMenu.exercises;
        (*std::ranges::find(items, item, [](const auto& button) {
            return button->name();
        }))->click();
        settle();
    }

    void press(Qt::Key key) {
        QTest::keyClick(QApplication::focusWidget(), key);
        settle();
    }
    void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
        settle();
    }
    /// The widget of that name in the quiz; the one that is shown, where frames share a name.
    template <class Widget = QWidget>
    Widget& inQuiz(const char* name) {
        const auto found = quiz->findChildren<Widget*>(QString::fromLatin1(name));
        if (found.isEmpty())
            throw std::runtime_error(std::string("no widget called ") + name);
        for (Widget* widget : found)
            if (widget->isVisible())
                return *widget;
        return *found.front();
    }
    void choose(const char* name) {
        QTest::mouseClick(&inQuiz(name), Qt::LeftButton);
        settle();
    }
    std::string focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "nothing";
    }
    /// Plays steps with ";" between them: "type 235", "key Return", "Command7" clicks, and
    /// "Label8>direct" expects what is shown, "Label8~WRONG" that a screen reader says this part.
    void play(const std::string& steps) {
        SCOPED_TRACE(steps);
        for (const QString& part : QString::fromStdString(steps).split(QLatin1Char(';'))) {
            const std::string step = part.toStdString().substr(part.startsWith(QLatin1Char(' ')));
            const std::size_t sign = step.find_first_of(">~");
            const std::string name = step.substr(0, sign);
            if (sign != std::string::npos && step[sign] == '~')
                EXPECT_THAT(inQuiz(name.c_str()).accessibleName().toStdString(),
                            testing::HasSubstr(step.substr(sign + 1)));
            else if (sign != std::string::npos)
                EXPECT_EQ(shown(name), step.substr(sign + 1)) << step;
            else if (step.starts_with("type "))
                type(step.c_str() + 5);
            else if (step.starts_with("key "))
                press(QKeySequence(QString::fromStdString(step.substr(4)))[0].key());
            else
                choose(name.c_str());
        }
    }
    /// The text of what is visible, "" of what is not, and of "focus" the name of what has it.
    std::string shown(const std::string& name) {
        if (name == "focus")
            return focus();
        auto& widget = inQuiz(name.c_str());
        if (!widget.isVisible())
            return "";
        for (const char* kind : {"text", "currentText"})
            if (const QVariant text = widget.property(kind); text.isValid())
                return text.toString().toStdString();
        return "visible";
    }

    const TemporaryFolder temporary;
    const std::filesystem::path folder = temporary.at;
    QuizPanel* quiz = nullptr;

  private:
    void recordFlight() {
        form->startButton.click();
        fly(60);
        form->startButton.click();
        settle();
        form->UserControl11.saveSessionTo((folder / "default/sessions/flight.ts").string());
    }
};

} // namespace tarnel
