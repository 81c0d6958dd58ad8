#include "window/menu_tree.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>
#include <QMenuBar>

#include <span>

namespace tarnel {

namespace {

/// An entry of a menu by its object name and text.
struct MenuEntry {
    const char* name;
    Text text;
};

class MenuBuilder {
  public:
    MenuBuilder(QMenuBar& target, Form1& owner, FormBinding& links)
        : bar(target), form(owner), binding(links) {}

    void buildFile(const MenuActions& actions);
    void buildExercises();
    void buildBook();
    void buildView();
    void buildKeys(QMenu& view);
    void buildHelp(const MenuActions& actions);

  private:
    QMenu* menu(QWidget& parent, const char* name, Text text);
    QAction* entry(QMenu& menu, const char* name, const QString& text);
    QAction* later(QMenu& menu, const MenuEntry& each);
    void allLater(QMenu& menu, std::span<const MenuEntry> entries);
    void practiceSessions(QMenu& menu, const char* name, Text header, Text prefix,
                          const char* items);
    void textRange(QMenu& menu, const char* prefix, Text first, Text last);
    QString text(Text id) const { return textOf(form.texts, id).replace('&', "&&"); }

    QMenuBar& bar;
    Form1& form;
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

QAction* MenuBuilder::later(QMenu& parent, const MenuEntry& each) {
    QAction* action = entry(parent, each.name, text(each.text));
    action->setEnabled(false);
    return action;
}

void MenuBuilder::allLater(QMenu& parent, std::span<const MenuEntry> entries) {
    for (const MenuEntry& each : entries)
        later(parent, each);
}

void MenuBuilder::practiceSessions(QMenu& parent, const char* name, Text header, Text prefix,
                                   const char* items) {
    constexpr int sessions = 10;
    QMenu* list = menu(parent, name, header);
    for (int i = 1; i <= sessions; ++i) {
        QAction* action = entry(*list, "", text(prefix) + QString::number(i));
        action->setObjectName(QString::fromLatin1(items) + QString::number(i));
        action->setEnabled(false);
    }
    list->menuAction()->setEnabled(false);
}

void MenuBuilder::textRange(QMenu& parent, const char* prefix, Text first, Text last) {
    QMenu* list = menu(parent, prefix, first);
    for (int id = static_cast<int>(first); id <= static_cast<int>(last); ++id) {
        QAction* action = entry(*list, prefix, text(static_cast<Text>(id)));
        action->setEnabled(false);
    }
    list->menuAction()->setEnabled(false);
}

void MenuBuilder::buildFile(const MenuActions& actions) {
    FileMenu& items = form.fileMenu;
    QMenu* file = menu(bar, "mnufile", Text::menuFile);
    for (CommandButton* control : items.items()) {
        if (control == &items.loadChart)
            file->addSeparator();
        binding.bind(*control, *file->addAction(text(*control->caption())));
    }
    later(*file, {"fencrypt", Text::encipherFiles});
    file->addSeparator();
    QAction* exit = entry(*file, "mnuExit", text(Text::exitProgram));
    exit->setShortcut(QKeySequence::Quit);
    QObject::connect(exit, &QAction::triggered, &bar, actions.exit);
}

void MenuBuilder::buildExercises() {
    static constexpr MenuEntry adfRmi[] = {{"adfpos", Text::exerciseAdfPosition},
                                           {"qdm", Text::exerciseQdm},
                                           {"qdr", Text::exerciseQdr}};
    static constexpr MenuEntry hsiVor[] = {
        {"hsipos2", Text::exerciseHsiPosition},   {"mnuAltitude", Text::exerciseHsiPositionLarge},
        {"hldhsi", Text::exerciseHsiHolding},     {"dmearcs", Text::exerciseDmeArcs},
        {"stdvor", Text::exerciseStdVorPosition}, {"wind", Text::exerciseWind},
        {"hlddg", Text::exerciseDgHolding}};
    QMenu* exercises = menu(bar, "mnuOption", Text::menuExercises);
    for (const auto& [name, header, entries] :
         {std::tuple{"adfrmi", Text::exercisesAdfRmi, std::span<const MenuEntry>(adfRmi)},
          std::tuple{"hsivor", Text::exercisesHsiVor, std::span<const MenuEntry>(hsiVor)}}) {
        QMenu* group = menu(*exercises, name, header);
        allLater(*group, entries);
        group->menuAction()->setEnabled(false);
    }
    QMenu* practice = menu(*exercises, "adfvorprac", Text::practiceAdfVor);
    practiceSessions(*practice, "vorprac", Text::practiceVor, Text::vorPracticePrefix, "vor");
    practiceSessions(*practice, "adfprac", Text::practiceAdf, Text::adfPracticePrefix, "adf");
    practice->menuAction()->setEnabled(false);
    later(*exercises, {"qdnorient", Text::exerciseOrientation});
    exercises->addSeparator();
    later(*exercises, {"resstats", Text::resetStatistics});
}

void MenuBuilder::buildBook() {
    QMenu* book = menu(bar, "mnubuch", Text::menuBook);
    textRange(*book, "pdf0", Text::tipsHsiAndStdVor, Text::tipsAdfPosition);
    textRange(*book, "pdf1", Text::bookFacilities, Text::bookNdbAdfBasics);
    textRange(*book, "pdf2", Text::bookPresentations, Text::bookIndicatingInstrument);
    textRange(*book, "pdf3", Text::bookIndicator, Text::bookStdIlsInterpretation);
    textRange(*book, "pdf4", Text::bookIlsExamples, Text::bookIlsOstrava);
    textRange(*book, "pdf5", Text::bookRmiAdf, Text::bookDmeArcStdVor);
    textRange(*book, "pdf6", Text::bookInterceptions, Text::bookQdrInterceptions);
    textRange(*book, "pdf7", Text::bookWind, Text::bookDirectionalGyro);
    textRange(*book, "pdf8", Text::bookHolding, Text::bookHoldingExamples);
    textRange(*book, "pdf9", Text::bookOrientation, Text::bookTwoNeedles);
    book->addSeparator();
    textRange(*book, "approach", Text::menuApproachCharts, Text::approachLowg);
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
    QObject::connect(view, &QMenu::aboutToShow, view, [this_form = &form, north, heading] {
        const bool up = this_form->UserControl11.c_MAPnorthUP == 1;
        (up ? north : heading)->setChecked(true);
    });
    const auto guarded = [this_form = &form](auto action) {
        return [this_form, action] { this_form->guarded([&] { action(*this_form); }); };
    };
    QObject::connect(north, &QAction::triggered, &bar,
                     guarded([](Form1& f) { f.setNorthUp(true); }));
    QObject::connect(heading, &QAction::triggered, &bar,
                     guarded([](Form1& f) { f.setNorthUp(false); }));
    view->addSeparator();
    buildKeys(*view);
    view->addSeparator();
    QAction* larger = entry(*view, "zoomIn", text(Text::zoomIn));
    larger->setShortcut(QKeySequence::ZoomIn);
    QObject::connect(larger, &QAction::triggered, &bar, guarded([](Form1& f) { f.stepScale(1); }));
    QAction* smaller = entry(*view, "zoomOut", text(Text::zoomOut));
    smaller->setShortcut(QKeySequence::ZoomOut);
    QObject::connect(smaller, &QAction::triggered, &bar,
                     guarded([](Form1& f) { f.stepScale(-1); }));
    view->addSeparator();
    binding.bind(form.floatingGyroBox, *entry(*view, "floatingGyro", text(Text::floatingGyro)));
}

/// The letters on the status panels. A field that takes text keeps them to itself.
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
        QObject::connect(action, &QAction::triggered, &bar, [this_form = &form, which = letter] {
            this_form->guarded([&] { this_form->pressKey(which); });
        });
    }
}

void MenuBuilder::buildHelp(const MenuActions& actions) {
    QMenu* help = menu(bar, "mnuhelp", Text::menuHelp);
    later(*help, {"hilfeindex", Text::helpIndex});
    QMenu* introduction = menu(*help, "intromain", Text::introduction);
    later(*introduction, {"intro1", Text::introduction1});
    later(*introduction, {"intro2", Text::introduction2});
    introduction->menuAction()->setEnabled(false);
    later(*help, {"userguide", Text::userGuide});
    later(*help, {"pdf11", Text::bookAbbreviations});
    later(*help, {"pdf12", Text::bookIndex});
    later(*help, {"webqxr", Text::productPage});
    help->addSeparator();
    QAction* about = entry(*help, "test", text(Text::aboutTarnel));
    QObject::connect(about, &QAction::triggered, &bar, actions.about);
}

} // namespace

void buildMenus(QMenuBar& bar, Form1& form, FormBinding& binding, const MenuActions& actions) {
    MenuBuilder builder(bar, form, binding);
    builder.buildFile(actions);
    builder.buildExercises();
    builder.buildBook();
    builder.buildView();
    builder.buildHelp(actions);
}

} // namespace tarnel
