#pragma once

#include "engine/file_requests.h"
#include "engine/flight_tape.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"

#include <cstdint>
#include <functional>
#include <utility>

namespace tarnel {

/// The one place between a file that was read and found good and the first change that it makes:
/// what has to be done about the flight in memory is done here.
class LoadGate {
  public:
    struct Given {
        SimulationMessages& messages; ///< whoever owns the strip brings it to rest
        ClockProperties& clocks;      ///< without one the clock alone stops
        const FlightTape& tape;
        std::function<void()> handLetsGo; ///< ends what the mouse is doing
    };
    explicit LoadGate(Given what) : given(std::move(what)) {}

    void makeWayFor(FileRequest request, std::int16_t how) const {
        given.messages.stopForLoading(request, how == fileRequest::ask);
        given.handLetsGo();
        if (!given.clocks.stopped())
            given.clocks.c_TimerEN = 0;
        given.tape.recording.giveUp();
    }

  private:
    Given given;
};

} // namespace tarnel
