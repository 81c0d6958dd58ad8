#include "panel/instrument_positions.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "panel/signal_name.h"

namespace tarnel {

namespace {

constexpr double chartCentreSmallDisplays = 3405;
constexpr double chartCentreLargeDisplay = 2505;

std::int16_t nextOf(std::int16_t value, std::int16_t last) {
    return value >= last ? std::int16_t{1} : static_cast<std::int16_t>(value + 1);
}

std::int16_t& vorChannelOf(InstrumentPosition& position) {
    return position.type == hsi ? position.channels.hsi : position.channels.vor;
}

struct PointerPair {
    Slot first;
    Slot second;
};

constexpr PointerPair rmiPairs[] = {
    {Slot::ndb1, Slot::ndb2}, {Slot::ndb1, Slot::vor1}, {Slot::ndb1, Slot::vor2},
    {Slot::ndb2, Slot::vor1}, {Slot::ndb2, Slot::vor2}, {Slot::vor1, Slot::vor2},
};

} // namespace

InstrumentPositions::InstrumentPositions(UserControl2& simulation, PanelControls& controls,
                                         const StringTable& words)
    : sim(simulation),
      panel(controls),
      texts(words),
      inst2Links{controls.inst2,
                 controls.inst2ChannelButton,
                 controls.inst2TypeList,
                 controls.inst2OverlayBox,
                 controls.inst2RadialBox,
                 simulation.c_inst2,
                 simulation.c_Inst2NAVselect,
                 simulation.c_Inst2_ADFCardselect,
                 simulation.c_NAVRadI2,
                 simulation.c_obsI2},
      inst3Links{controls.inst3,
                 controls.inst3ChannelButton,
                 controls.inst3TypeList,
                 controls.inst3OverlayBox,
                 controls.inst3RadialBox,
                 simulation.c_inst3,
                 simulation.c_Inst3NAVselect,
                 simulation.c_Inst3_ADFCardselect,
                 simulation.c_NAVRadI3,
                 simulation.c_obsI3} {
    connect(inst2Links);
    connect(inst3Links);
    panel.inst1ChannelButton.onClick = [this] { stepChannel(panel.inst1); };
    panel.inst2Small.onClick = [this] { resize(panel.inst2, false); };
    panel.inst2Large.onClick = [this] { resize(panel.inst2, true); };
    panel.inst3Small.onClick = [this] { resize(panel.inst3, false); };
    panel.inst3Large.onClick = [this] { resize(panel.inst3, true); };
}

void InstrumentPositions::connect(const PositionLinks& links) {
    links.typeList.onClick = [this, &links] {
        select(links, static_cast<std::int16_t>(links.typeList.index() + 1));
    };
    links.channelButton.onClick = [this, &links] { stepChannel(links.position); };
    links.radialBox.onClick = [&links] {
        links.radialShown = static_cast<std::int16_t>(links.radialBox.value());
    };
}

void InstrumentPositions::select(const PositionLinks& links, std::int16_t type) {
    InstrumentPosition& position = links.position;
    position.setType(type);
    links.instType = type;
    position.instrument.Display = type;
    if (type == vor || type == hsi)
        takeVor(position, vorChannelOf(position));
    else
        takeVor(position, 3);
    label(position);
    feedInstrument(links, feedSources());
    links.typeList.select(type - 1);
    position.typeSeen = type;
}

/// Gives a position the OBS of the VOR that `channel` names; whoever held it falls back.
void InstrumentPositions::takeVor(InstrumentPosition& position, std::int16_t channel) {
    for (InstrumentPosition* other : {&panel.inst1, &panel.inst2, &panel.inst3}) {
        if (other == &position)
            continue;
        if (channel == 1 && other->vor1Hold == holdsObs)
            other->vor1Hold = overtaken;
        if (channel == 2 && other->vor2Hold == holdsObs)
            other->vor2Hold = overtaken;
    }
    position.vor1Hold = channel == 1 ? holdsObs : notOnVor;
    position.vor2Hold = channel == 2 ? holdsObs : notOnVor;
}

std::string InstrumentPositions::dmeText(Slot slot) const {
    if (!hasDme(slot))
        return text(Text::signalNone);
    return numberText(sim.slot(slot).dme.get());
}

void InstrumentPositions::label(InstrumentPosition& position) const {
    UserControl_1& instrument = position.instrument;
    const std::string none = text(Text::signalNone);
    const InstrumentChannels& channels = position.channels;
    std::array<std::string, 6> labels;
    switch (position.type) {
    case adf:
        labels = {text(channels.adf == 1 ? Text::signalAdf1 : Text::signalAdf2), none, none};
        break;
    case rmi: {
        const PointerPair& pair = rmiPairs[channels.rmi - 1];
        labels = {text(signalName(pair.first)),  dmeText(pair.first),  none,
                  text(signalName(pair.second)), dmeText(pair.second), none};
        break;
    }
    case vor:
    case hsi: {
        static constexpr Text names[] = {Text::signalVor1, Text::signalVor2, Text::signalLoc1};
        labels = {text(names[vorChannelOf(position) - 1]), none};
        break;
    }
    default: {
        static constexpr Text names[] = {Text::signalDme1, Text::signalDme2, Text::signalDme3};
        if (channels.dg > 1)
            labels = {text(names[channels.dg - 2]), none};
    }
    }
    instrument.c_LabelText1 = labels[0];
    instrument.c_LabelText2 = labels[1];
    instrument.c_LabelText3 = labels[2];
    instrument.c_LabelText4 = labels[3];
    instrument.c_LabelText5 = labels[4];
    instrument.c_LabelText6 = labels[5];
}

void InstrumentPositions::stepChannel(InstrumentPosition& position) {
    InstrumentChannels& channels = position.channels;
    switch (position.type) {
    case adf:
        channels.adf = nextOf(channels.adf, 2);
        break;
    case rmi:
        channels.rmi = nextOf(channels.rmi, 6);
        break;
    case vor:
    case hsi:
        stepVorChannel(position, vorChannelOf(position));
        break;
    default:
        channels.dg = nextOf(channels.dg, 4);
    }
}

/// A position whose OBS was taken over first takes it back; only then does it change the station.
void InstrumentPositions::stepVorChannel(InstrumentPosition& position, std::int16_t& channel) {
    if (position.vor1Hold != overtaken && position.vor2Hold != overtaken)
        channel = nextOf(channel, 3);
    takeVor(position, channel);
}

bool InstrumentPositions::anyLarge() const {
    return panel.inst2.instrument.c_Large == 1 || panel.inst3.instrument.c_Large == 1;
}

void InstrumentPositions::resize(InstrumentPosition& position, bool large) {
    position.instrument.c_Large = large ? 1 : 0;
    if (position.type != 0)
        position.instrument.Display = position.type;
    sim.c_CenterTwips.setIfChanged(anyLarge() ? chartCentreLargeDisplay : chartCentreSmallDisplays);
}

void InstrumentPositions::echoSelectors() {
    InstrumentPosition& inst2 = panel.inst2;
    InstrumentPosition& inst3 = panel.inst3;
    if (inst2.type == inst2.typeSeen && inst3.type == inst3.typeSeen)
        return;
    panel.inst3TypeList.select(inst3.type - 1);
    panel.inst2TypeList.select(inst2.type - 1);
    inst2.typeSeen = inst2.type;
    inst3.typeSeen = inst3.type;
}

void InstrumentPositions::followReceivers() {
    panel.inst3.navSel = panel.inst3.instrument.c_NAVselect;
    panel.inst2.navSel = panel.inst2.instrument.c_NAVselect;
}

void InstrumentPositions::followLocalizer() {
    locCourse = toInt16(sim.c_LocCrs1);
}

void InstrumentPositions::echoChannelButtons(bool covered) {
    const auto echo = [covered](CommandButton& button, const InstrumentPosition& position) {
        button.setVisible(showsCourse(position) && !covered);
        button.setCaption(holdsAnObs(position) ? Text::channelObs : Text::channelNav);
    };
    echo(panel.inst1ChannelButton, panel.inst1);
    echo(panel.inst2ChannelButton, panel.inst2);
    echo(panel.inst3ChannelButton, panel.inst3);
}

FeedSources InstrumentPositions::feedSources() {
    return {sim,      panel.NAVControlFace1, panel.NAVControlFace2, panel.ADFControlFace1, texts,
            locCourse};
}

void InstrumentPositions::feed() {
    const FeedSources sources = feedSources();
    feedInstrument(inst2Links, sources);
    feedInstrument(inst3Links, sources);
}

} // namespace tarnel
