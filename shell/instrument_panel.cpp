#include "core/number_text.h"
#include "core/rounding.h"
#include "shell/form_1.h"
#include "shell/signal_name.h"

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

void Form1::selectInstrument(const PositionLinks& links, std::int16_t type) {
    InstrumentPosition& position = links.position;
    position.setType(type);
    links.instType = type;
    position.instrument.Display = type;
    if (type == vor || type == hsi)
        takeVor(position, vorChannelOf(position));
    else
        takeVor(position, 3);
    labelInstrument(position);
    feedInstrument(links, feedSources());
    links.typeList.select(type - 1);
    position.typeSeen = type;
}

/// Gives a position the OBS of the VOR that `channel` names; whoever held it falls back.
void Form1::takeVor(InstrumentPosition& position, std::int16_t channel) {
    for (InstrumentPosition* other : {&inst1, &inst2, &inst3}) {
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

std::string Form1::dmeText(Slot slot) const {
    if (!hasDme(slot))
        return text(Text::signalNone);
    return numberText(UserControl11.slot(slot).dme.get());
}

void Form1::labelInstrument(InstrumentPosition& position) {
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

void Form1::stepChannel(InstrumentPosition& position) {
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
void Form1::stepVorChannel(InstrumentPosition& position, std::int16_t& channel) {
    if (position.vor1Hold != overtaken && position.vor2Hold != overtaken)
        channel = nextOf(channel, 3);
    takeVor(position, channel);
}

bool Form1::anyInstrumentLarge() const {
    return inst2.instrument.c_Large == 1 || inst3.instrument.c_Large == 1;
}

void Form1::resizeInstrument(InstrumentPosition& position, bool large) {
    position.instrument.c_Large = large ? 1 : 0;
    if (position.type != 0)
        position.instrument.Display = position.type;
    UserControl11.c_CenterTwips.setIfChanged(anyInstrumentLarge() ? chartCentreLargeDisplay
                                                                  : chartCentreSmallDisplays);
}

void Form1::setFloatingGyroOpen(bool open) {
    floatingGyroBox.set(open ? 1 : 0);
    if (!open)
        return;
    UserControl_DG.c_MainAppPath = UserControl11.c_MainAppPath.get();
    UserControl_DG.Display = dg;
}

} // namespace tarnel
