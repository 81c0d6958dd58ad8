#pragma once

#include "exercises/exercise_catalogue.h"
#include "shell/memory_log.h"
#include "window/help/help_window.h"
#include "window/student_fixture.h"

#include <QAction>
#include <QDialog>

#include <functional>
#include <string>

namespace tarnel {

/// A student who turns to every page, opens every dialog and begins every exercise.
class EveryPage : public Student {
  protected:
    /// What is called with each, and with the name of the page.
    using Visit = std::function<void(QWidget& shown, const std::string& page)>;

    void goEverywhere(const StringTable& texts, QSize size, const Visit& visit) {
        open(texts, size);
        goOverTheStrip(visit);
        goThroughExercises(visit);
        debrief(visit);
        seeProgress(visit);
        openOthers(texts, visit);
    }

  private:
    void see(const Visit& visit, const std::string& page) {
        settle();
        visit(*window, page);
    }
    void goOverTheStrip(const Visit& visit) {
        for (const char* page : {"PageChart", "PageReplay", "PageWind", "PageStations"}) {
            turnTo(page);
            see(visit, page);
        }
        form->stationPage.edit.set(1);
        see(visit, "PageStations, edited");
        form->stationPage.edit.set(0);
        click("WriteComments");
        form->UserControl11.c_TrackDelta = 2;
        see(visit, "comments written");
        click("WriteComments");
    }
    void goThroughExercises(const Visit& visit) {
        for (auto& item : form->exerciseMenu.exercises) {
            item->click();
            ExercisePanel& panel = *form->QAform1.activePanel();
            const std::string name(item->name());
            see(visit, name);
            if (panel.rows.front()->list)
                panel.rows.front()->list->pick(1);
            panel.solutionButton.click();
            see(visit, name + ", solved");
            if (panel.flyButton.visible()) {
                panel.flyButton.click();
                see(visit, name + ", flown");
            }
            panel.cancelButton.click();
            settle();
        }
    }
    void debrief(const Visit& visit) {
        form->exerciseMenu.vorPractice[0]->click();
        form->startButton.click();
        fly(20);
        form->coupling.setHeadingBug(200);
        fly(60);
        form->startButton.click();
        see(visit, "practice flight");
        if (!form->debrief.isOpen())
            findShown("Debrief").click();
        see(visit, "debrief");
        click("DebriefClose");
    }
    void seeProgress(const Visit& visit) {
        form->training.useLog([](TrainingDesk&) {
            auto log = std::make_unique<MemoryLog>();
            LoggedFlight flight;
            flight.when = 1;
            flight.title = "Holding at MR, inbound 240°, for a check ride, right hand";
            flight.findings.resize(2);
            flight.findings[0].verdict = Verdict::right;
            log->add(flight, "s", {});
            AnsweredRow row;
            row.exercise = ExerciseType::hsiHolding;
            row.spot = Text::spotEntryOffsetLeft;
            for (row.question = 0; row.question < 5; ++row.question)
                log->add(row);
            return log;
        });
        find<QAction>("mnuProgress").trigger();
        see(visit, "progress");
        click("AllFlights");
        see(visit, "all flights");
        click("CloseProgress");
    }
    void openOthers(const StringTable& texts, const Visit& visit) {
        form->documents.bookForm.shown.set(1);
        form->documents.chartForm.shown.set(1);
        settle();
        for (const char* name : {"frmBuchPDF", "frmJeppPDF"})
            visit(find<QWidget>(name), name);
        find<QAction>("mnuNewChart").trigger();
        auto& finder = find<QDialog>("ChartFinder");
        visit(finder, "chart finder");
        finder.close();
        HelpWindow help(texts);
        help.open(QString::fromStdString(applicationFolder) + QStringLiteral("/Hilfe/") +
                  QLatin1String(texts.isGerman() ? "de" : "en") + QStringLiteral("/index.html"));
        visit(help, "help");
    }
};

} // namespace tarnel
