#pragma once

#include "engine/user_control_2.h"
#include "panel/instrument_feed.h"
#include "panel/panel_controls.h"
#include "strings/string_table.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// The instruments at their places: which kind each shows, how large, who holds the OBS of a VOR,
/// and what their needles are fed with.
class InstrumentPositions {
  public:
    InstrumentPositions(UserControl2& simulation, PanelControls& panel, const StringTable& texts);

    [[nodiscard]] const PositionLinks& links2() const { return inst2Links; }
    [[nodiscard]] const PositionLinks& links3() const { return inst3Links; }

    void select(const PositionLinks& links, std::int16_t type);
    void resize(InstrumentPosition& position, bool large);
    [[nodiscard]] bool anyLarge() const;

    // Steps of the tick.
    /// Brings the lists to kinds that a replay has changed.
    void echoSelectors();
    void followReceivers();
    /// The localizer's course that the needles use until the next call.
    void followLocalizer();
    /// An instrument without a course has no such button; under a cover there is none either.
    void echoChannelButtons(bool covered);
    void feed();

    [[nodiscard]] FeedSources feedSources();

  private:
    void connect(const PositionLinks& links);
    void takeVor(InstrumentPosition& position, std::int16_t channel);
    void stepChannel(InstrumentPosition& position);
    void stepVorChannel(InstrumentPosition& position, std::int16_t& channel);
    void label(InstrumentPosition& position) const;
    [[nodiscard]] std::string dmeText(Slot slot) const;
    [[nodiscard]] std::string text(Text id) const { return std::string(texts[id]); }

    UserControl2& sim;
    PanelControls& panel;
    const StringTable& texts;
    PositionLinks inst2Links;
    PositionLinks inst3Links;
    std::int16_t locCourse = 0;
};

} // namespace tarnel
