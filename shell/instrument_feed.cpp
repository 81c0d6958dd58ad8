#include "shell/instrument_feed.h"

#include "core/rounding.h"
#include "shell/signal_name.h"

namespace tarnel {

namespace {

/// One feed: a position and where its needles come from.
class Feed {
  public:
    Feed(const PositionLinks& owner, const FeedSources& from)
        : links(owner),
          sources(from),
          sim(from.simulation),
          position(owner.position),
          instrument(owner.position.instrument) {}

    void feedAdf();
    void feedRmi();
    void feedVor();
    void feedHsi();
    void feedDg();
    void writeCourseOnChart(double course);

  private:
    [[nodiscard]] bool northUp() const { return sim.c_MAPnorthUP == 1; }
    [[nodiscard]] double bearing(Slot slot) const;
    [[nodiscard]] double course(Slot slot) const;
    [[nodiscard]] bool stationOn(Slot slot) const { return sim.slot(slot).enabled != off; }
    [[nodiscard]] double inboundCourse() const;
    [[nodiscard]] double fromTopOfChart(double course) const {
        return northUp() ? course : course - sim.c_HDG;
    }
    void keepCourse(Slot tuned, double selectedCourse);
    void setAngle(double degrees);
    void setSlavedCard();
    void setReceiver(Slot tuned, double selectedCourse, bool stationIsOn);
    void setOverlayBox(Slot tuned);
    void setSecondPointerName(Text name);
    void clearSecondPointerName();

    const PositionLinks& links;
    const FeedSources& sources;
    UserControl2& sim;
    InstrumentPosition& position;
    UserControl_1& instrument;
};

/// The bearing to a station as an angle from the top of the instrument. On a chart with the heading
/// up the radial is already relative to the heading; the localizer's never is.
double Feed::bearing(Slot slot) const {
    const double radial = sim.slot(slot).radial;
    return northUp() ? (radial - 180) - sim.c_HDG : radial - 180;
}

/// The true radial of a station, however the chart lies.
double Feed::course(Slot slot) const {
    const double radial = sim.slot(slot).radial;
    if (northUp() || slot == Slot::localizer)
        return radial;
    const double sum = sim.c_HDG + radial;
    return sum > 360 ? sum - 360 : sum;
}

/// The localizer's approach course, brought into 0 to 360.
double Feed::inboundCourse() const {
    return intoCircle(sources.locCourse + 180);
}

void Feed::setAngle(double degrees) {
    instrument.angle = toInt32(degrees);
}

void Feed::setSlavedCard() {
    instrument.c_HDG = toInt16(360 - sim.c_HDG);
    setAngle(360 - sim.c_HDG);
}

void Feed::writeCourseOnChart(double selectedCourse) {
    links.courseOnChart.setIfChanged(fromTopOfChart(selectedCourse));
}

void Feed::setSecondPointerName(Text name) {
    const std::string_view text = sources.texts[name];
    if (instrument.c_LabelText4.get() != text)
        instrument.c_LabelText4 = std::string(text);
}

void Feed::clearSecondPointerName() {
    if (!instrument.c_LabelText4.get().empty())
        instrument.c_LabelText4 = std::string();
}

void Feed::feedAdf() {
    constexpr std::int16_t slavedCard = 2;
    const Slot ndb = tunedNdb(sources);
    if (!stationOn(ndb))
        return;
    instrument.adfradial = bearing(ndb);
    setAngle(instrument.c_ADFCardselect == slavedCard ? 360 - sim.c_HDG : 360 - position.obs);
}

void Feed::feedRmi() {
    constexpr double parked = 90;
    const Slot tuned = tunedStation(sources, position.navSel);
    const bool vorReceived = tuned != Slot::localizer && stationOn(tuned);
    instrument.adfradial = vorReceived ? bearing(tuned) : parked;
    const Slot ndb = tunedNdb(sources);
    instrument.adf2radial = stationOn(ndb) ? bearing(ndb) : 0;
    setSecondPointerName(signalName(ndb));
    setSlavedCard();
}

/// Radial, course and localizer distance of a VOR indicator or HSI. With the station off the radial
/// stands abeam of the course, so that the flag shows.
void Feed::setReceiver(Slot tuned, double selectedCourse, bool stationIsOn) {
    instrument.adf2radial = stationIsOn ? course(tuned) : selectedCourse + 90;
    instrument.c_LOCEN =
        stationIsOn && tuned == Slot::localizer ? -sim.slot(tuned).dme.get() - 1 : 0.0;
    instrument.c_OBS = selectedCourse;
}

void Feed::feedVor() {
    const Slot tuned = tunedStation(sources, position.navSel);
    const bool received = stationOn(tuned);
    const bool localizer = received && tuned == Slot::localizer;
    const double selected = localizer ? inboundCourse() : position.obs;
    setReceiver(tuned, selected, received);
    instrument.c_HDG = localizer ? toInt16(instrument.c_LOCEN) : std::int16_t{0};
    if (received)
        instrument.c_OBS_x = selected;
    setAngle(360 - position.obs);
    keepCourse(tuned, position.obs);
}

/// Keeps the course of a received VOR for the chart.
void Feed::keepCourse(Slot tuned, double selectedCourse) {
    if (!stationOn(tuned) || tuned == Slot::localizer)
        return;
    (tuned == Slot::vor1 ? sim.c_OBS1 : sim.c_OBS2) = fromTopOfChart(selectedCourse);
}

/// The overlay needle has nothing to point at on a localizer: its box goes grey there.
void Feed::setOverlayBox(Slot tuned) {
    constexpr int ticked = 1;
    constexpr int greyed = 2;
    if (tuned == Slot::localizer && links.overlayBox.value() == ticked)
        links.overlayBox.set(greyed);
    else if (tuned != Slot::localizer && links.overlayBox.value() == greyed)
        links.overlayBox.set(ticked);
}

void Feed::feedHsi() {
    const Slot tuned = tunedStation(sources, position.navSel);
    const bool received = stationOn(tuned);
    const bool localizer = tuned == Slot::localizer;
    setOverlayBox(tuned);
    const double offCourse = localizer ? static_cast<double>(sources.locCourse) : position.obsHsi;
    const double selected = localizer && received ? inboundCourse() : offCourse;
    setReceiver(tuned, selected, received);
    if (received && instrument.c_RMIoverlayEN == 1)
        setSecondPointerName(signalName(tuned));
    else
        clearSecondPointerName();
    setSlavedCard();
    instrument.c_OBS_x = received ? selected : position.obsHsi;
    keepCourse(tuned, position.obsHsi);
}

void Feed::feedDg() {
    setAngle(360 - sim.c_HDG);
}

} // namespace

Slot tunedStation(const FeedSources& sources, std::int16_t receiver) {
    static constexpr Slot slots[] = {Slot::vor1, Slot::vor2, Slot::localizer};
    const auto& face = receiver == 1 ? sources.nav1 : sources.nav2;
    const auto selected = face.c_SetFreq.get();
    return selected >= 0 && selected <= 2 ? slots[selected] : Slot::localizer;
}

Slot tunedNdb(const FeedSources& sources) {
    return sources.adfReceiver.c_SetFreq == 0 ? Slot::ndb1 : Slot::ndb2;
}

void feedInstrument(const PositionLinks& links, const FeedSources& sources) {
    Feed feed(links, sources);
    switch (links.position.type) {
    case adf:
        feed.feedAdf();
        break;
    case rmi:
        feed.feedRmi();
        break;
    case vor:
        feed.feedVor();
        break;
    case hsi:
        feed.feedHsi();
        break;
    case dg:
        feed.feedDg();
        break;
    default:
        return;
    }
    feed.writeCourseOnChart(links.position.type == hsi ? links.position.obsHsi
                                                       : links.position.obs);
}

} // namespace tarnel
