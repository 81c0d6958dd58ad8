#include "tools/handbook/figures.h"

#include "chart/chart_framing.h"
#include "flights/flight.h"
#include "flights/plan_reader.h"
#include "panel/needle_sources.h"
#include "tools/handbook/drawings.h"
#include "tools/output/output_file.h"
#include "window/chart/chart_painter.h"
#include "window/dials/instrument_painter.h"

#include <QPainter>

#include <filesystem>

namespace tarnel {

namespace {

constexpr double dialUnits = 480;
constexpr double chartUnits = 460;

/// The stations that the two dials follow.
std::vector<GeoPosition> stationsInUse(Form1& form) {
    std::vector<GeoPosition> places;
    const FeedSources sources = form.positions.feedSources();
    for (const InstrumentPosition* position : {&form.inst2, &form.inst3}) {
        const NeedleSources needles = needleSources(*position, sources);
        for (const std::optional<NeedleSource>& needle : {needles.first, needles.second})
            if (needle && needle->received)
                places.push_back(
                    toPlain(inSlot(form.UserControl11.stations, needle->slot).position));
    }
    return places;
}

/// Shows the flight and what its needles speak of, as large as it fits.
void frame(UserControl2& simulation, const std::vector<GeoPosition>& all) {
    std::vector<FramedPlace> places;
    places.reserve(all.size());
    for (const GeoPosition& place : all)
        places.push_back({place, framedAircraftRoom});
    const ChartFraming framing = framingOf(places, simulation.picture.size);
    simulation.showChart(framing.centre, framing.scale);
}

void write(const QByteArray& bytes, const std::string& file) {
    OutputFile output(file);
    output.write(bytes.toStdString());
    output.close();
}

} // namespace

void drawFigures(const std::string& plan, const std::string& folder, const StringTable& texts,
                 const std::string& applicationFolder) {
    ScriptedFlight flight(readPlanFile(plan), texts, applicationFolder);
    std::vector<GeoPosition> places;
    Form1& form = flight.form();
    flight.fly(flight.plan().seconds,
               [&] { places.push_back(form.UserControl11.aircraft.published()); });
    const std::vector<GeoPosition> stations = stationsInUse(form);
    places.insert(places.end(), stations.begin(), stations.end());
    frame(form.UserControl11, places);
    PictureStore pictures(QString::fromStdString(applicationFolder));
    InstrumentPainter dials(pictures);
    const auto dial = [&](const UserControl_1& instrument) {
        return drawing(dialUnits, [&](QPainter& painter) {
            dials.paint(painter, instrument.picture, dialUnits);
        });
    };
    const std::string name = folder + "/" + std::filesystem::path(plan).stem().string();
    write(dial(form.inst2.instrument), name + "-left.svg");
    write(dial(form.inst3.instrument), name + "-right.svg");
    write(drawing(chartUnits,
                  [&](QPainter& painter) {
                      ChartPainter(form.UserControl11, texts, ChartMedium::sheet)
                          .paint(painter, chartUnits, 8);
                  }),
          name + "-chart.svg");
}

} // namespace tarnel
