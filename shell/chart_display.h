#pragma once

#include "engine/user_control_2.h"
#include "shell/trainer_controls.h"
#include "strings/string_table.h"

#include <cstdint>

namespace tarnel {

/// `ChartDisplay`: what is drawn on the chart, how large, and which way is up.
class ChartDisplay {
  public:
    ChartDisplay(UserControl2& simulation, TrainerControls& controls, const StringTable& table);

    /// Both boxes that hide the aircraft show the same. Without it there are no trace and vectors.
    void setHidden(bool hidden);
    [[nodiscard]] bool hidden() const { return hideOn; }
    /// Off, the wind triangle, the turns ahead.
    void stepVectors();
    /// The next of the radial-line displays: the centre radial, the lines beside it, none.
    void cycleRadialLines();
    /// Moves the chart's scale by `steps` of those offered; positive shows less chart, larger. From
    /// a scale between them the first step goes to the next one.
    void stepScale(int steps);
    /// Twips per NM.
    [[nodiscard]] std::int16_t scale() const { return sim.c_MAPscale; }
    void setScale(std::int16_t twipsPerMile);
    /// NM from edge to edge at a scale.
    [[nodiscard]] double milesAcross(std::int16_t twipsPerMile) const {
        return sim.picture.size / twipsPerMile;
    }
    [[nodiscard]] bool northUp() const { return sim.c_MAPnorthUP == 1; }
    /// Does nothing where the heading must not be up.
    void setNorthUp(bool northUp);
    /// A chart under the heading would tell where a hidden aircraft is.
    [[nodiscard]] bool mayTurnHeadingUp() const { return !sim.placeIsSecret(); }

  private:
    enum class Vectors { none, windTriangle, turnsAhead };

    void applyTrace();
    void applyVectors();
    [[nodiscard]] Vectors vectorsAsked() const;

    UserControl2& sim;
    TrainerControls& strip;
    const StringTable& texts;
    bool hideOn = false;
    std::int16_t radialCycle = 0;
};

} // namespace tarnel
