#include "engine/hand_history.h"

#include <algorithm>

namespace tarnel {

bool HandStep::changed() const {
    const auto station = static_cast<std::size_t>(slot);
    switch (deed) {
    case Deed::placeAircraft:
        return before.aircraft != after.aircraft;
    case Deed::turnAircraft:
        return before.heading != after.heading || before.headingBug != after.headingBug;
    case Deed::moveStation:
        return before.stations[station] != after.stations[station];
    case Deed::setWind:
        break;
    }
    return before.wind.wind != after.wind.wind || before.wind.source != after.wind.source;
}

void HandHistory::add(HandStep step) {
    forgetUndone();
    if (step.joins && !steps.empty() && steps.back().joins && steps.back().deed == step.deed) {
        steps.back().after = step.after;
        return;
    }
    if (steps.size() == longest)
        steps.erase(steps.begin());
    steps.push_back(std::move(step));
    done = steps.size();
}

const HandStep* HandHistory::undoable() const {
    return done > 0 ? &steps[done - 1] : nullptr;
}

const HandStep* HandHistory::redoable() const {
    return done < steps.size() ? &steps[done] : nullptr;
}

const HandStep* HandHistory::undo() {
    const HandStep* step = undoable();
    if (step)
        --done;
    return step;
}

HandStep* HandHistory::redo() {
    return redoable() ? &steps[done++] : nullptr;
}

void HandHistory::forgetUndone() {
    steps.resize(done);
}

void HandHistory::keepStations() {
    const auto isOther = [](const HandStep& step) { return step.deed != Deed::moveStation; };
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(done);
    done -= static_cast<std::size_t>(std::count_if(steps.begin(), middle, isOther));
    std::erase_if(steps, isOther);
}

void HandHistory::clear() {
    steps.clear();
    done = 0;
}

} // namespace tarnel
