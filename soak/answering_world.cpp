#include "soak/answering_world.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cctype>

namespace tarnel {

namespace {

/// A text of a box without what differs from one to the next.
std::string withoutNumbers(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    std::ranges::replace_if(
        text, [](unsigned char letter) { return std::isdigit(letter) != 0; }, '#');
    const auto same = [](char a, char b) { return a == '#' && b == '#'; };
    text.erase(std::unique(text.begin(), text.end(), same), text.end());
    return text;
}

} // namespace

AnsweringWorld::AnsweringWorld(const Given& what)
    : QtOutsideWorld(what.texts, what.settings), given(what) {}

void AnsweringWorld::messageBox(BoxKind kind, const std::string& title, const std::string& text) {
    given.trail.note("box " + withoutNumbers(text));
    ++given.boxes[withoutNumbers(title + ": " + text)];
    QTimer::singleShot(0, &life, [this] { answerBox(); });
    QtOutsideWorld::messageBox(kind, title, text);
}

bool AnsweringWorld::ask(const std::string& title, const std::string& text) {
    given.trail.note("asked " + withoutNumbers(text));
    QTimer::singleShot(0, &life, [this] { answerBox(); });
    return QtOutsideWorld::ask(title, text);
}

/// Runs in the box's own loop.
void AnsweringWorld::answerBox() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box)
        return QTimer::singleShot(1, &life, [this] { answerBox(); });
    const QList<QAbstractButton*> buttons = box->buttons();
    const int choice = given.dice.below(static_cast<int>(buttons.size()) + 1);
    given.trail.note("answer " + std::to_string(choice));
    if (choice == buttons.size())
        QTest::keyClick(box, Qt::Key_Escape);
    else
        QTest::mouseClick(buttons[choice], Qt::LeftButton);
}

/// What can be picked where a file is to be read: those of the extension, and now and then another.
std::vector<std::string> AnsweringWorld::filesOf(const FileQuestion& question) const {
    std::vector<std::string> paths;
    const std::string filter = question.filter;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(given.files)) {
        const std::string ending = entry.path().extension().string();
        if (!ending.empty() && filter.find("*" + ending) != std::string::npos)
            paths.push_back(entry.path().string());
    }
    std::ranges::sort(paths);
    return paths;
}

std::optional<std::string> AnsweringWorld::chooseFile(const FileQuestion& question) {
    constexpr int names = 4; // of own files of each kind
    std::optional<std::string> path;
    if (question.saves)
        path = (given.files /
                ("own" + std::to_string(given.dice.below(names)) + "." + question.extension))
                   .string();
    else if (const auto paths = filesOf(question); !paths.empty())
        path = given.dice.of(paths);
    if (given.dice.once(8))
        path.reset();
    else if (given.dice.once(12))
        path = (given.files / "missing" / ("file." + question.extension)).string();
    given.trail.note("file " + (path ? std::filesystem::path(*path).filename().string() : "none"));
    return path;
}

bool AnsweringWorld::opens(const std::function<void()>& notOpened) {
    const int chance = given.dice.below(10);
    if (chance == 0)
        QTimer::singleShot(0, &life, notOpened);
    return chance != 1;
}

bool AnsweringWorld::openDocument(const std::string& /*path*/, int /*page*/,
                                  const std::function<void()>& notOpened) {
    return opens(notOpened);
}

bool AnsweringWorld::openInBrowser(const std::string& /*path*/,
                                   const std::function<void()>& notOpened) {
    return opens(notOpened);
}

NavFolders AnsweringWorld::navFolders() const {
    return {.data = {given.files / "programs"},
            .home = given.files,
            .flightGearRoot = {},
            .downloads = given.files};
}

} // namespace tarnel
