#include "window/frame/menu_tree.h"

#include "shell/documents.h"
#include "window/frame/course_menu.h"
#include "window/frame/flight_signs.h"
#include "window/frame/recent_menu.h"
#include "window/widgets/mnemonics.h"
#include "window/widgets/quiet_key.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <span>

namespace tarnel {

namespace {

Text deedName(const HandStep& step) {
    static constexpr Text names[] = {Text::deedPlace, Text::deedTurn, Text::deedStation,
                                     Text::deedWind};
    return names[static_cast<std::size_t>(step.deed)];
}

/// A sub menu can be opened while any of its items can be used.
void followItems(QMenu& menu) {
    const auto update = [&menu] {
        const QList<QAction*> items = menu.actions();
        menu.menuAction()->setEnabled(std::ranges::any_of(
            items, [](const QAction* item) { return item->isEnabled() && !item->isSeparator(); }));
    };
    for (const QAction* item : menu.actions())
        QObject::connect(item, &QAction::enabledChanged, &menu, update);
    update();
}

class MenuBuilder {
  public:
    MenuBuilder(QMenuBar& target, const MenuModel& menuModel, FormBinding& links)
        : bar(target), model(menuModel), binding(links) {}

    void buildFile();
    void buildEdit();
    void buildExercises();
    void buildBook();
    void buildView();
    void buildKeys(QMenu& view);
    void buildHelp();

  private:
    QMenu* menu(QWidget& parent, const char* name, Text text);
    QAction* entry(QMenu& menu, const char* name, const QString& text);
    QAction* bound(QMenu& menu, CommandButton& control, const QKeySequence& shortcut = {});
    QAction* opening(QMenu& menu, const QString& name, Text text, std::function<void()> open);
    void exerciseGroup(QMenu& menu, const char* name, Text header, ExerciseItem::Group group);
    void exerciseItemsOf(QMenu& list, ExerciseItem::Group group);
    void practiceSessions(QMenu& menu, const char* name, Text header, Text prefix,
                          ExerciseMenu::Practice& items);
    void bookChapter(QMenu& menu, const BookChapter& chapter, int& page);
    void approaches(QMenu& menu);
    QString text(Text id) const { return textOf(model.boxes.texts, id).replace('&', "&&"); }

    QMenuBar& bar;
    MenuModel model;
    FormBinding& binding;
};

QMenu* MenuBuilder::menu(QWidget& parent, const char* name, Text id) {
    auto* asBar = qobject_cast<QMenuBar*>(&parent);
    QMenu* created =
        asBar ? asBar->addMenu(text(id)) : static_cast<QMenu&>(parent).addMenu(text(id));
    created->setObjectName(QString::fromLatin1(name));
    return created;
}

QAction* MenuBuilder::entry(QMenu& parent, const char* name, const QString& caption) {
    QAction* action = parent.addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

/// An item of the form; without a caption of its own it gets its text from the caller.
QAction* MenuBuilder::bound(QMenu& parent, CommandButton& control, const QKeySequence& shortcut) {
    QAction* action = parent.addAction(control.caption() ? text(*control.caption()) : QString());
    action->setShortcut(shortcut);
    binding.bind(control, *action);
    return action;
}

/// An item that opens a document.
QAction* MenuBuilder::opening(QMenu& parent, const QString& name, Text id,
                              std::function<void()> open) {
    QAction* action = entry(parent, name.toLatin1().constData(), text(id));
    QObject::connect(action, &QAction::triggered, &bar,
                     [&boxes = model.boxes, open = std::move(open)] { boxes.guarded(open); });
    return action;
}

void MenuBuilder::buildFile() {
    FileMenu& items = model.controls.fileMenu;
    QMenu* file = menu(bar, "mnufile", Text::menuFile);
    bound(*file, items.newSession, QKeySequence::New);
    bound(*file, items.loadSession, QKeySequence::Open);
    bound(*file, items.loadOldSession);
    QMenu* recent = menu(*file, "mnuRecent", Text::recentFiles);
    binding.bind(items.recent, *recent->menuAction());
    fillWithRecentFiles(*recent, model.recentFiles, model.files, model.boxes);
    bound(*file, items.saveSession, QKeySequence::Save);
    bound(*file, items.saveSessionAs, Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    QMenu* flights = menu(*file, "mnuBringBack", Text::bringBackFlight);
    binding.bind(model.flights.menu, *flights->menuAction());
    FlightSigns::fillMenu(model.flights, model.boxes, *flights);
    file->addSeparator();
    bound(*file, items.exportFlight);
    bound(*file, items.flyAlong);
    file->addSeparator();
    bound(*file, items.newChart);
    bound(*file, items.loadChart);
    bound(*file, items.saveChart);
    bound(*file, items.saveChartAs);
    binding.bind(items.encipher, *entry(*file, "fencrypt", text(Text::encipherFiles)));
    file->addSeparator();
    QAction* exit = entry(*file, "mnuExit", text(Text::exitProgram));
    exit->setShortcut(QKeySequence::Quit);
    QObject::connect(exit, &QAction::triggered, &bar, model.exit);
}

/// The items say what they take back or do again.
void MenuBuilder::buildEdit() {
    EditMenu& items = model.controls.editMenu;
    QMenu* edit = menu(bar, "mnuEdit", Text::menuEdit);
    QAction* undo = bound(*edit, items.undo, QKeySequence::Undo);
    QAction* redo = bound(*edit, items.redo, Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
    const auto name = [&texts = model.boxes.texts](QAction& action, Text caption,
                                                   const HandStep* step) {
        QString text = textOf(texts, caption);
        if (step)
            text += QStringLiteral(": ") + textOf(texts, deedName(*step));
        action.setText(text.replace('&', QStringLiteral("&&")));
    };
    QObject::connect(edit, &QMenu::aboutToShow, edit, [&history = model.history, undo, redo, name] {
        name(*undo, Text::undo, history.undoable());
        name(*redo, Text::redo, history.redoable());
    });
    edit->addSeparator();
    binding.bind(model.controls.stationPage.edit,
                 *entry(*edit, "editChart", text(Text::editChart)));
    edit->addActions({&model.placeByKeys, &model.turnByKeys});
}

void MenuBuilder::exerciseGroup(QMenu& parent, const char* name, Text header,
                                ExerciseItem::Group group) {
    QMenu* list = menu(parent, name, header);
    exerciseItemsOf(*list, group);
    followItems(*list);
}

void MenuBuilder::exerciseItemsOf(QMenu& list, ExerciseItem::Group group) {
    const std::span<const ExerciseItem> items = exerciseItems();
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].group == group)
            bound(list, *model.controls.exerciseMenu.exercises[i]);
}

void MenuBuilder::practiceSessions(QMenu& parent, const char* name, Text header, Text prefix,
                                   ExerciseMenu::Practice& items) {
    QMenu* list = menu(parent, name, header);
    for (std::size_t i = 0; i < items.size(); ++i)
        bound(*list, *items[i])->setText(text(prefix) + QString::number(i + 1));
    followItems(*list);
}

void MenuBuilder::buildExercises() {
    ExerciseMenu& items = model.controls.exerciseMenu;
    QMenu* exercises = menu(bar, "mnuOption", Text::menuExercises);
    exerciseGroup(*exercises, "adfrmi", Text::exercisesAdfRmi, ExerciseItem::Group::adfAndRmi);
    exerciseGroup(*exercises, "hsivor", Text::exercisesHsiVor, ExerciseItem::Group::hsiAndVor);
    QMenu* practice = menu(*exercises, "adfvorprac", Text::practiceAdfVor);
    practiceSessions(*practice, "vorprac", Text::practiceVor, Text::vorPracticePrefix,
                     items.vorPractice);
    practiceSessions(*practice, "adfprac", Text::practiceAdf, Text::adfPracticePrefix,
                     items.adfPractice);
    followItems(*practice);
    exerciseItemsOf(*exercises, ExerciseItem::Group::alone);
    QMenu* courses = menu(*exercises, "mnuOwnCourses", Text::ownCourses);
    binding.bind(items.ownCourses, *courses->menuAction());
    fillWithCourses(*courses, model.courses, model.boxes);
    exercises->addSeparator();
    bound(*exercises, items.progress);
    bound(*exercises, items.resetStatistics);
    followItems(*exercises);
}

/// The items of a chapter open the pages of the table from `page` on.
void MenuBuilder::bookChapter(QMenu& parent, const BookChapter& chapter, int& page) {
    QMenu* list = menu(parent, chapter.name, chapter.header);
    const int first = static_cast<int>(chapter.first);
    for (int id = first; id <= static_cast<int>(chapter.last); ++id, ++page) {
        const QString name = QString::fromLatin1(chapter.name) + QString::number(id - first + 1);
        opening(*list, name, static_cast<Text>(id),
                [&desk = model.documents, number = model.boxes.texts.bookPage(page)] {
                    desk.OpenBook(number);
                });
    }
}

void MenuBuilder::approaches(QMenu& parent) {
    QMenu* list = menu(parent, "approach", Text::menuApproachCharts);
    const std::span<const ApproachChart> charts = approachCharts();
    for (std::size_t i = 0; i < charts.size(); ++i)
        opening(*list, QString::fromLatin1(charts[i].document).left(4), charts[i].name,
                [&desk = model.documents, i] { desk.openApproachChart(i); });
    list->addSeparator();
    binding.bind(model.documents.chartForm.shown,
                 *entry(*list, "frmJeppPDF", text(Text::chartForm)));
}

void MenuBuilder::buildBook() {
    QMenu* book = menu(bar, "mnubuch", Text::menuBook);
    opening(*book, QStringLiteral("bookStart"), Text::bookStart,
            [&desk = model.documents] { desk.OpenBook(0); });
    binding.bind(model.documents.bookForm.shown, *entry(*book, "frmBuchPDF", text(Text::bookForm)));
    book->addSeparator();
    int page = 0;
    for (const BookChapter& chapter : bookChapters())
        bookChapter(*book, chapter, page);
    book->addSeparator();
    approaches(*book);
}

void MenuBuilder::buildView() {
    QMenu* view = menu(bar, "mnuView", Text::menuView);
    auto* views = new QActionGroup(view);
    QAction* north = entry(*view, "northUp", text(Text::northUp));
    QAction* heading = entry(*view, "headingUp", text(Text::headingUp));
    for (QAction* action : {north, heading}) {
        action->setCheckable(true);
        views->addAction(action);
    }
    QObject::connect(view, &QMenu::aboutToShow, view, [&display = model.display, north, heading] {
        (display.northUp() ? north : heading)->setChecked(true);
    });
    const auto shown = [&boxes = model.boxes, &display = model.display](auto action) {
        return [&boxes, &display, action] { boxes.guarded([&] { action(display); }); };
    };
    QObject::connect(north, &QAction::triggered, &bar,
                     shown([](ChartDisplay& display) { display.setNorthUp(true); }));
    QObject::connect(heading, &QAction::triggered, &bar,
                     shown([](ChartDisplay& display) { display.setNorthUp(false); }));
    view->addSeparator();
    buildKeys(*view);
    view->addSeparator();
    QAction* larger = entry(*view, "zoomIn", text(Text::zoomIn));
    larger->setShortcut(QKeySequence::ZoomIn);
    QObject::connect(larger, &QAction::triggered, &bar,
                     shown([](ChartDisplay& display) { display.stepScale(1); }));
    QAction* smaller = entry(*view, "zoomOut", text(Text::zoomOut));
    smaller->setShortcut(QKeySequence::ZoomOut);
    QObject::connect(smaller, &QAction::triggered, &bar,
                     shown([](ChartDisplay& display) { display.stepScale(-1); }));
    view->addSeparator();
    binding.bind(model.floatingGyroBox, *entry(*view, "floatingGyro", text(Text::floatingGyro)));
    view->addAction(&model.fullScreen);
    view->addSeparator();
    bound(*view, model.debrief.item, Qt::CTRL | Qt::Key_D);
}

/// The letters on the status panels. A field that takes text keeps them to itself; Space does what
/// M does.
void MenuBuilder::buildKeys(QMenu& view) {
    static constexpr std::pair<char, Text> keys[] = {
        {'M', Text::keyStart},   {'P', Text::keyReplay},  {'H', Text::keyHide},
        {'T', Text::keyTrace},   {'V', Text::keyVectors}, {'W', Text::keyWind},
        {'R', Text::keyRadials},
    };
    for (const auto& [letter, caption] : keys) {
        const QString key{QLatin1Char(letter)};
        QAction* action = entry(view, "", text(caption));
        action->setObjectName(QStringLiteral("key") + key);
        action->setShortcut(QKeySequence(key));
        action->setAutoRepeat(false);
        if (letter == 'M')
            setQuietKey(*action, Qt::Key_Space);
        QObject::connect(action, &QAction::triggered, &bar,
                         [&boxes = model.boxes, press = model.pressKey, which = letter] {
                             boxes.guarded([&] { press(which); });
                         });
    }
}

void MenuBuilder::buildHelp() {
    QMenu* help = menu(bar, "mnuhelp", Text::menuHelp);
    DocumentDesk* desk = &model.documents;
    const auto page = [this, desk](int index) {
        return [desk, number = model.boxes.texts.bookPage(index)] { desk->OpenBook(number); };
    };
    opening(*help, QStringLiteral("hilfeindex"), Text::helpIndex, model.help)
        ->setShortcut(QKeySequence::HelpContents);
    QAction* keys = entry(*help, "keyList", text(Text::keyListItem));
    QObject::connect(keys, &QAction::triggered, &bar, model.keys);
    QMenu* introduction = menu(*help, "intromain", Text::introduction);
    bound(*introduction, model.controls.exerciseMenu.introduction1);
    bound(*introduction, model.controls.exerciseMenu.introduction2);
    followItems(*introduction);
    opening(*help, QStringLiteral("userguide"), Text::userGuide, [desk] { desk->openUserGuide(); });
    opening(*help, QStringLiteral("bookAbbreviations"), Text::bookAbbreviations,
            page(abbreviationsPage));
    opening(*help, QStringLiteral("bookIndex"), Text::bookIndex, page(bookIndexPage));
    opening(*help, QStringLiteral("webqxr"), Text::productPage,
            [desk] { desk->openProductPage(); });
    help->addSeparator();
    QAction* about = entry(*help, "test", text(Text::aboutTarnel));
    QObject::connect(about, &QAction::triggered, &bar, [desk] { desk->showAbout(); });
}

} // namespace

void buildMenus(QMenuBar& bar, const MenuModel& model, FormBinding& binding) {
    MenuBuilder builder(bar, model, binding);
    builder.buildFile();
    builder.buildEdit();
    builder.buildExercises();
    builder.buildBook();
    builder.buildView();
    builder.buildHelp();
    giveMnemonics(bar);
}

} // namespace tarnel
