#pragma once

#include "core/aircraft.h"
#include "engine/chance.h"
#include "engine/simulation_properties.h"
#include "engine/wind_request.h"

#include <cstdint>
#include <vector>

namespace tarnel {

/// Where the wind of the chart comes from.
enum class WindSource { none, byHand, byChance, recorded };

/// The wind with where it came from, and the one that "Manual" returns to.
struct WindState {
    Wind wind;
    WindSource source = WindSource::none;
    Wind last;
};

/// Sets the wind of the whole chart and publishes it. It draws nothing: whoever sets a wind
/// refreshes the picture.
class WindSetting {
  public:
    WindSetting(WindProperties& windProperties, Chance& windChance)
        : properties(windProperties), chance(windChance) {}

    /// What `c_WindSetEN` asks for.
    [[nodiscard]] WindRequest asked() const {
        return static_cast<WindRequest>(properties.c_WindSetEN.get());
    }
    /// Takes what is asked for. A wind that is to be drawn is left to the mouse.
    void takeAsked();
    /// Takes a wind by hand, which is the one to come back to from now on.
    void takeByHand(const Wind& next);
    /// The same, when it is not drawn with the mouse: "Manual" is then chosen.
    void chooseByHand(const Wind& next);
    /// Takes the wind of a sample. One that came by chance stays one; any that blows is the one to
    /// come back to.
    void takeRecorded(const Wind& next);
    /// A calm, chosen as such.
    void calm();

    [[nodiscard]] WindState state() const { return {wind, source, last}; }
    /// Brings back an earlier state.
    void putBack(const WindState& earlier);

    /// The winds by chance of a session stay what they are when its replay brings them again, until
    /// another session begins.
    void forgetChanceWinds() { chanceWinds.clear(); }
    /// Whether the figures of a wind by chance may stand on the chart. True if that has changed.
    bool tellChanceWind(bool told);
    /// Whether the figures of the present wind may stand on the chart.
    [[nodiscard]] bool told() const { return source != WindSource::byChance || chanceWindTold; }

    Wind wind;
    WindSource source = WindSource::none;

  private:
    void take(const Wind& next, WindSource from);
    void publish(WindRequest request);
    void drawByChance();
    void tell();

    WindProperties& properties;
    Chance& chance;
    Wind last;
    bool chanceWindTold = true;
    std::vector<Wind> chanceWinds; ///< drawn since the session began
};

} // namespace tarnel
