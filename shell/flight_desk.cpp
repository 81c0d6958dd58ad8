#include "shell/flight_desk.h"

#include "core/number_text.h"
#include "engine/user_control_2.h"
#include "persistence/file_path.h"
#include "platform/path_text.h"
#include "shell/text_format.h"
#include "strings/cause_text.h"

#include <utility>

namespace tarnel {

FlightDesk::FlightDesk(FormState& form, BoxDesk& boxDesk, UserControl2& simulation,
                       OutsideWorld& world)
    : keeper(simulation, world),
      menu(form, "mnuBringBack", Text::bringBackFlight),
      notice(form, "StatusNotice"),
      boxes(boxDesk),
      texts(boxDesk.texts),
      sim(simulation),
      outside(world) {
    notice.setVisible(false);
    keeper.onPutAside = [this](const ShelvedFlight& flight) {
        tell(filledIn(texts[Text::flightPutAside], {lengthOf(flight)}));
    };
    keeper.onFailure = [this](const RunTimeError& error) {
        tell(filledIn(texts[Text::flightNotWritten], {causeText(texts, error.cause())}));
    };
}

std::string FlightDesk::title() const {
    const std::string file = textOf(portablePath(sim.c_SessionFileName).filename());
    const Text form = sim.flightUnsaved() ? Text::titleUnsaved : Text::titleSaved;
    return filledIn(texts[form], {file, texts[Text::windowTitle]});
}

std::string FlightDesk::lengthOf(const ShelvedFlight& flight) const {
    constexpr int secondsPerMinute = 60;
    return filledIn(texts[Text::flightLength],
                    {numberText(std::int64_t{flight.seconds / secondsPerMinute}),
                     numberText(std::int64_t{flight.seconds % secondsPerMinute})});
}

std::string FlightDesk::lineOf(const ShelvedFlight& flight) const {
    return filledIn(texts[Text::flightLine],
                    {outside.localTime(flight.time, std::string(texts[Text::flightTimeFormat])),
                     lengthOf(flight), FlightShelf::stations(flight)});
}

void FlightDesk::bringBack(const ShelvedFlight& flight) {
    if (!menu.enabled())
        return;
    try {
        keeper.bringBack(flight);
    } catch (const RunTimeError& error) {
        boxes.show(Text::windowTitle,
                   flight.path + "\n" + std::string(causeText(texts, error.cause())));
    }
}

bool FlightDesk::mayClose() {
    keeper.putAside();
    if (keeper.allWritten() || std::exchange(warned, true))
        return true;
    boxes.show(Text::windowTitle, std::string(texts[Text::closeWithoutFlight]));
    return false;
}

void FlightDesk::tell(const std::string& text) {
    notice.setText(text);
    notice.setVisible(true);
}

} // namespace tarnel
