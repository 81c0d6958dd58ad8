#include "window/frame/course_menu.h"

#include "shell/course_desk.h"
#include "window/widgets/text_of.h"

#include <QCollator>
#include <QMenu>

#include <algorithm>

namespace tarnel {

namespace {

/// Pixels.
constexpr int widestName = 360;

/// The text of an item: what a user has named, as a menu can show it.
QString shownName(const QString& name, const QMenu& menu) {
    QString text = name;
    for (QChar& letter : text)
        if (letter.category() == QChar::Other_Control)
            letter = QLatin1Char(' ');
    return menu.fontMetrics()
        .elidedText(text, Qt::ElideMiddle, widestName)
        .replace(QLatin1Char('&'), QLatin1String("&&"));
}

void addNote(QMenu& menu, const QString& text) {
    menu.addAction(shownName(text, menu))->setEnabled(false);
}

void addExercises(QMenu& menu, const std::string& course, CourseDesk& courses, BoxDesk& boxes) {
    for (const ExerciseItem* item : courses.exercisesOf(course))
        QObject::connect(menu.addAction(textOf(boxes.texts, item->text).replace('&', "&&")),
                         &QAction::triggered, &menu, [&courses, &boxes, course, item] {
                             boxes.guarded([&] { courses.open(course, *item); });
                         });
    if (menu.isEmpty())
        addNote(menu, textOf(boxes.texts, Text::courseWithoutExercises));
}

/// As a reader looks them up: "Kurs 2" before "Kurs 10", "Übung" beside "Uhr".
std::vector<std::string> sorted(std::vector<std::string> names, bool german) {
    QCollator order(german ? QLocale::German : QLocale::English);
    order.setNumericMode(true);
    std::vector<std::pair<QCollatorSortKey, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names)
        keyed.emplace_back(order.sortKey(QString::fromStdString(name)), std::move(name));
    std::ranges::sort(keyed, [](const auto& a, const auto& b) {
        const int way = a.first.compare(b.first);
        return way < 0 || (way == 0 && a.second < b.second);
    });
    std::ranges::transform(keyed, names.begin(), [](auto& pair) { return std::move(pair.second); });
    return names;
}

void addCourses(QMenu& menu, CourseDesk& courses, BoxDesk& boxes) {
    menu.clear();
    qDeleteAll(menu.findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
    for (const std::string& name : sorted(courses.names(), boxes.texts.isGerman())) {
        QMenu* course = menu.addMenu(shownName(QString::fromStdString(name), menu));
        QObject::connect(course, &QMenu::aboutToShow, course, [course, name, &courses, &boxes] {
            course->clear();
            addExercises(*course, name, courses, boxes);
        });
    }
    if (menu.isEmpty())
        addNote(
            menu,
            textOf(boxes.texts, Text::noOwnCourses).arg(QString::fromStdString(courses.place())));
}

} // namespace

void fillWithCourses(QMenu& menu, CourseDesk& courses, BoxDesk& boxes) {
    // However many there are, all can be reached.
    menu.setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&] { addCourses(menu, courses, boxes); });
}

} // namespace tarnel
