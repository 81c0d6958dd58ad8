#include "tools/handbook/figures.h"

#include "flights/flight.h"
#include "flights/plan_reader.h"
#include "panel/needle_sources.h"
#include "tools/handbook/drawings.h"
#include "tools/printed/sheet_chart.h"
#include "window/dials/instrument_painter.h"

#include <filesystem>

namespace tarnel {

namespace {

constexpr double chartUnits = 460;

/// Which receivers a plan tunes at any time.
struct TunedReceivers {
    bool nav = false;
    bool adf = false;
};

TunedReceivers tunedIn(const FlightPlan& plan) {
    TunedReceivers tuned;
    const auto add = [&](const FlightSettings& settings) {
        tuned.nav = tuned.nav || settings.nav1 || settings.nav2;
        tuned.adf = tuned.adf || settings.adf;
    };
    add(plan.start);
    for (const FlightEvent& event : plan.events)
        add(event.settings);
    return tuned;
}

/// The stations that the two dials follow and the plan speaks of: those it tunes; with none, the
/// VOR that the trainer starts with.
std::vector<GeoPosition> stationsInUse(Form1& form, const FlightPlan& plan) {
    std::vector<GeoPosition> places;
    const TunedReceivers tuned = tunedIn(plan);
    const FeedSources sources = form.positions.feedSources();
    for (const InstrumentPosition* position : {&form.inst2, &form.inst3}) {
        const NeedleSources needles = needleSources(*position, sources);
        for (const std::optional<NeedleSource>& needle : {needles.first, needles.second}) {
            if (!needle || !needle->received)
                continue;
            const bool beacon = needle->slot == Slot::ndb1 || needle->slot == Slot::ndb2;
            if (beacon ? tuned.adf : tuned.nav || !tuned.adf)
                places.push_back(
                    toPlain(inSlot(form.UserControl11.stations, needle->slot).position));
        }
    }
    return places;
}

} // namespace

void drawFigures(const std::string& plan, const std::string& folder, const StringTable& texts,
                 const std::string& applicationFolder) {
    ScriptedFlight flight(readPlanFile(plan), texts, applicationFolder);
    std::vector<GeoPosition> places;
    Form1& form = flight.form();
    flight.fly(flight.plan().seconds,
               [&] { places.push_back(form.UserControl11.aircraft.published()); });
    frameOnSheet(form.UserControl11, places, stationsInUse(form, flight.plan()));
    PictureStore pictures(QString::fromStdString(applicationFolder));
    InstrumentPainter dials(pictures, Numerals::text);
    const std::string name = folder + "/" + std::filesystem::path(plan).stem().string();
    writeFile(name + "-left.svg", dialDrawing(dials, form.inst2.instrument.picture));
    writeFile(name + "-right.svg", dialDrawing(dials, form.inst3.instrument.picture));
    writeFile(name + "-chart.svg",
              pictureDrawing(sheetChart(form.UserControl11, texts, chartUnits), chartUnits));
}

} // namespace tarnel
