#include "panel/needle_sources.h"

#include <array>

namespace tarnel {

namespace {

constexpr std::array selectable{Slot::vor1, Slot::vor2, Slot::localizer};

NeedleSource navSource(std::int16_t receiver, const FeedSources& sources) {
    const auto& face = receiver == 1 ? sources.nav1 : sources.nav2;
    const auto selected = static_cast<std::size_t>(face.c_SetFreq.get());
    const Slot slot = selected < selectable.size() ? selectable[selected] : Slot::localizer;
    return {slot, sources.simulation.slot(slot).enabled != off};
}

NeedleSource adfSource(const FeedSources& sources) {
    const Slot slot = sources.adfReceiver.c_SetFreq == 0 ? Slot::ndb1 : Slot::ndb2;
    return {slot, sources.simulation.slot(slot).enabled != off};
}

} // namespace

NeedleSources needleSources(const InstrumentPosition& position, const FeedSources& sources) {
    switch (position.type) {
    case adf:
        return {adfSource(sources), {}};
    case rmi: {
        NeedleSource pointed = navSource(position.navSel, sources);
        pointed.received = pointed.received && pointed.slot != Slot::localizer;
        return {pointed, adfSource(sources)};
    }
    case vor:
    case hsi:
        return {navSource(position.navSel, sources), {}};
    default:
        return {};
    }
}

std::optional<NeedleSource> dmeSource(const RadioFace& dme, const UserControl2& simulation) {
    const auto selected = static_cast<std::size_t>(dme.c_SetFreq.get());
    if (selected >= selectable.size())
        return {};
    const Slot slot = selectable[selected];
    return NeedleSource{slot, simulation.slot(slot).dmeEnabled != off};
}

} // namespace tarnel
