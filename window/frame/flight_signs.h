#pragma once

#include <QObject>

#include <string>

class QFrame;
class QLabel;
class QMainWindow;
class QMenu;

namespace tarnel {

class BoxDesk;
class ExerciseConduct;
class FlightDesk;
class FlightSwitch;
class UserControl2;

/// `FlightSigns`: what the window's own edges tell of flights: the title names the one in memory,
/// and at the end of the menu bar one line offers the last one of the run before.
class FlightSigns : public QObject {
    Q_OBJECT

  public:
    FlightSigns(FlightDesk& flightDesk, const FlightSwitch& flightSwitch,
                const ExerciseConduct& conduct, const UserControl2& simulation, BoxDesk& boxDesk,
                QMainWindow& place);

    void refresh();

    /// Fills `menu` with the flights that can be brought back, whenever it opens.
    static void fillMenu(FlightDesk& desk, BoxDesk& boxes, QMenu& menu);

  private:
    void makeOffer();
    void showOffer();

    FlightDesk& desk;
    const FlightSwitch& flight;
    const ExerciseConduct& exercise;
    const UserControl2& sim;
    BoxDesk& boxes;
    QMainWindow& window;
    QFrame* offer = nullptr;
    QLabel* offerLine = nullptr;
    /// What the title was made of.
    struct Named {
        std::string file;
        bool unsaved = false;
        bool inExercise = false;
        bool operator==(const Named&) const = default;
    } named;
    std::string shownOffer; ///< the file of the flight that is offered
};

} // namespace tarnel
