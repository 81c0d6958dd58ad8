#include "shell/flight_keeper.h"

#include "engine/user_control_2.h"

#include <chrono>
#include <future>
#include <utility>

namespace tarnel {

/// The writing of a copy by another thread; it ends with the error, if there is one.
struct FlightKeeper::Writing {
    std::future<std::optional<RunTimeError>> end;
};

FlightKeeper::FlightKeeper(UserControl2& simulation, OutsideWorld& world)
    : sim(simulation), outside(world) {
    sim.recording.beforeLoss = [this] { putAside(); };
}

FlightKeeper::~FlightKeeper() {
    finishCopy();
    sim.recording.beforeLoss = nullptr;
}

void FlightKeeper::useShelf(const std::string& folder) {
    shelf = std::make_unique<FlightShelf>(folder);
    shelf->adoptCopies(leastSeconds);
    const std::vector<ShelvedFlight> all = shelf->flights();
    if (!all.empty() && !shelf->wasOffered(all.front()))
        offered = all.front();
}

bool FlightKeeper::worthKeeping() const {
    const FlightVersion version = sim.flightVersion();
    const auto samples = static_cast<std::size_t>(sim.recording.sampleIndex());
    return shelf && sim.flightUnsaved() && version != keptVersion &&
           secondsOfSamples(samples) >= leastSeconds;
}

void FlightKeeper::putAside() {
    if (!shelf)
        return;
    const bool worth = worthKeeping();
    if (worth) {
        KeptFlight flight{sim.session(), sim.reference};
        const int seconds = secondsOfSamples(flight.session.samples.size());
        unwritten.push_back({outside.secondsNow(),
                             seconds,
                             {},
                             std::make_shared<const KeptFlight>(std::move(flight))});
        keptVersion = sim.flightVersion();
    }
    const ShelvedFlight last = worth ? unwritten.back() : ShelvedFlight{};
    writeWaiting();
    if (worth && allWritten() && onPutAside)
        onPutAside(last);
}

void FlightKeeper::writeWaiting() {
    try {
        while (!unwritten.empty()) {
            shelf->put(*unwritten.front().unwritten, unwritten.front().time);
            unwritten.erase(unwritten.begin());
            failureTold = false;
        }
    } catch (const RunTimeError& error) {
        tell(error);
        return;
    }
    if (!worthKeeping() && copiedVersion) {
        finishCopy();
        shelf->dropCopy();
        copiedVersion.reset();
    }
}

void FlightKeeper::keepCopy() {
    using namespace std::chrono_literals;
    if (!shelf || (copying && copying->end.wait_for(0s) != std::future_status::ready))
        return;
    finishCopy();
    writeWaiting();
    const FlightVersion version = sim.flightVersion();
    if (!worthKeeping() || version == copiedVersion)
        return;
    copiedVersion = version;
    auto write = [place = shelf.get(), flight = KeptFlight{sim.session(), sim.reference}] {
        try {
            place->writeCopy(flight);
        } catch (const RunTimeError& error) {
            return std::optional(error);
        }
        return std::optional<RunTimeError>();
    };
    copying = std::make_unique<Writing>(Writing{std::async(std::launch::async, std::move(write))});
}

/// A copy that failed is written again the next time.
void FlightKeeper::finishCopy() {
    if (!copying)
        return;
    const auto failure = copying->end.get();
    copying.reset();
    if (failure) {
        copiedVersion = FlightVersion{};
        tell(*failure);
    } else if (allWritten()) {
        failureTold = false;
    }
}

void FlightKeeper::tell(const RunTimeError& error) {
    if (!std::exchange(failureTold, true) && onFailure)
        onFailure(error);
}

void FlightKeeper::takeAsKept() {
    keptVersion = sim.flightVersion();
}

std::vector<ShelvedFlight> FlightKeeper::flights() const {
    std::vector<ShelvedFlight> all(unwritten.rbegin(), unwritten.rend());
    if (shelf)
        for (ShelvedFlight& flight : shelf->flights())
            all.push_back(std::move(flight));
    return all;
}

void FlightKeeper::bringBack(const ShelvedFlight& flight) {
    const KeptFlight kept = FlightShelf::read(flight);
    if (kept.session.samples.empty())
        throw RunTimeError(Cause::fileWithoutFlight);
    sim.takeFlight(kept.session, kept.reference);
    takeAsKept();
    if (offered && offered->path == flight.path)
        closeOffer();
}

void FlightKeeper::closeOffer() {
    if (offered && shelf)
        shelf->noteOffered(*offered);
    offered.reset();
}

} // namespace tarnel
