#pragma once

#include "controls/form_controls.h"
#include "shell/box_desk.h"
#include "shell/flight_keeper.h"

#include <string>

namespace tarnel {

/// `FlightDesk`: what the user sees of his flights: whether the one in memory is saved, where one
/// went, and those that he can bring back.
class FlightDesk {
  public:
    FlightDesk(FormState& form, BoxDesk& boxDesk, UserControl2& simulation, OutsideWorld& world);

    /// The title of a window with the flight in memory: its file and whether it is saved.
    [[nodiscard]] std::string title() const;
    /// A flight in a list: when it was put aside, how long it is and its stations.
    [[nodiscard]] std::string lineOf(const ShelvedFlight& flight) const;
    /// Brings a flight back; a box tells if it can't be read. Does nothing while the menu rests.
    void bringBack(const ShelvedFlight& flight);
    /// Puts the flight in memory aside before the program is closed. The first time that a flight
    /// can't be written a box tells it and the answer is no.
    [[nodiscard]] bool mayClose();

    FlightKeeper keeper;
    CommandButton menu; ///< of the flights that can be brought back
    TextPanel notice;   ///< where a flight went; whoever shows it hides it again

  private:
    [[nodiscard]] std::string lengthOf(const ShelvedFlight& flight) const;
    void tell(const std::string& text);

    BoxDesk& boxes;
    const StringTable& texts;
    UserControl2& sim;
    OutsideWorld& outside;
    bool warned = false;
};

} // namespace tarnel
