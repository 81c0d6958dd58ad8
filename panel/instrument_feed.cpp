#include "panel/instrument_feed.h"

#include "core/angle.h"
#include "core/rounding.h"
#include "panel/needle_sources.h"
#include "panel/signal_name.h"

namespace tarnel {

namespace {

/// Where a pointer stands whose station is off, degrees from the top of the instrument.
constexpr double parked = 90;

/// One feed: a position and where its needles come from.
class Feed {
  public:
    Feed(const PositionLinks& owner, const FeedSources& from)
        : links(owner),
          sources(from),
          sim(from.simulation),
          position(owner.position),
          instrument(owner.position.instrument),
          needles(needleSources(owner.position, from)) {}

    void feedAdf();
    void feedRmi();
    void feedVor();
    void feedHsi();
    void feedDg();
    void writeCourseOnChart(double course);

  private:
    [[nodiscard]] bool northUp() const { return sim.c_MAPnorthUP == 1; }
    [[nodiscard]] double course(Slot slot) const;
    [[nodiscard]] double pointer(const NeedleSource& source) const;
    [[nodiscard]] double inboundCourse() const;
    [[nodiscard]] double fromTopOfChart(double course) const {
        return northUp() ? course : course - sim.c_HDG;
    }
    void keepCourse(double selectedCourse);
    void setAngle(double degrees);
    void setSlavedCard();
    void setReceiver(double selectedCourse);
    void setOverlay();
    void setSecondPointerName(Text name);
    void clearSecondPointerName();

    const PositionLinks& links;
    const FeedSources& sources;
    UserControl2& sim;
    InstrumentPosition& position;
    UserControl_1& instrument;
    NeedleSources needles;
};

/// The bearing to a station as an angle from the top of the instrument. On a chart with the heading
/// up the radial is already relative to the heading; the localizer's never is.
double Feed::pointer(const NeedleSource& source) const {
    if (!source.received)
        return parked;
    const double radial = sim.slot(source.slot).radial;
    return northUp() ? (radial - 180) - sim.c_HDG : radial - 180;
}

/// The true radial of a station, however the chart lies.
double Feed::course(Slot slot) const {
    const double radial = sim.slot(slot).radial;
    if (northUp() || slot == Slot::localizer)
        return radial;
    return notAbove360(sim.c_HDG + radial);
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
    instrument.adfradial = pointer(*needles.first);
    setAngle(360 - (instrument.c_ADFCardselect == slavedCard ? sim.c_HDG.get() : position.adfCard));
}

void Feed::feedRmi() {
    instrument.adfradial = pointer(*needles.first);
    instrument.adf2radial = pointer(*needles.second);
    setSecondPointerName(signalName(needles.second->slot));
    setSlavedCard();
}

/// Radial, course and localizer distance of a VOR indicator or HSI. With the station off the radial
/// stands abeam of the course, so that the flag shows.
void Feed::setReceiver(double selectedCourse) {
    const auto [tuned, received] = *needles.first;
    instrument.adf2radial = received ? course(tuned) : selectedCourse + 90;
    instrument.c_LOCEN =
        received && tuned == Slot::localizer ? -sim.slot(tuned).dme.get() - 1 : 0.0;
    instrument.c_OBS = selectedCourse;
}

void Feed::feedVor() {
    const auto [tuned, received] = *needles.first;
    const bool localizer = received && tuned == Slot::localizer;
    const double selected = localizer ? inboundCourse() : position.obs;
    setReceiver(selected);
    instrument.c_HDG = localizer ? toInt16(instrument.c_LOCEN) : std::int16_t{0};
    if (received)
        instrument.c_OBS_x = selected;
    setAngle(360 - position.obs);
    keepCourse(position.obs);
}

/// Keeps the course of a received VOR for the chart.
void Feed::keepCourse(double selectedCourse) {
    const auto [tuned, received] = *needles.first;
    if (!received || tuned == Slot::localizer)
        return;
    (tuned == Slot::vor1 ? sim.c_OBS1 : sim.c_OBS2) = fromTopOfChart(selectedCourse);
}

/// The overlay needle has nothing to point at on a localizer: its box goes grey there. While the
/// station is off it is hidden.
void Feed::setOverlay() {
    const auto [tuned, received] = *needles.first;
    constexpr int ticked = 1;
    constexpr int greyed = 2;
    if (tuned == Slot::localizer && links.overlayBox.value() == ticked)
        links.overlayBox.set(greyed);
    else if (tuned != Slot::localizer && links.overlayBox.value() == greyed)
        links.overlayBox.set(ticked);
    const bool shown = links.overlayBox.value() == ticked && received;
    instrument.c_RMIoverlayEN.setIfChanged(shown ? 1 : 0);
    if (shown)
        setSecondPointerName(signalName(tuned));
    else
        clearSecondPointerName();
}

void Feed::feedHsi() {
    const auto [tuned, received] = *needles.first;
    const bool localizer = tuned == Slot::localizer;
    setOverlay();
    const double offCourse = localizer ? static_cast<double>(sources.locCourse) : position.obsHsi;
    const double selected = localizer && received ? inboundCourse() : offCourse;
    setReceiver(selected);
    setSlavedCard();
    instrument.c_OBS_x = received ? selected : position.obsHsi;
    keepCourse(position.obsHsi);
}

void Feed::feedDg() {
    setAngle(360 - sim.c_HDG);
}

} // namespace

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
    feed.writeCourseOnChart(links.position.dial());
}

} // namespace tarnel
