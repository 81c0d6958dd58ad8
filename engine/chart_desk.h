#pragma once

#include "engine/file_picker.h"
#include "engine/flight_recorder.h"
#include "engine/flight_scene.h"
#include "engine/hand_work.h"
#include "engine/load_gate.h"
#include "engine/session_on_disk.h"
#include "engine/simulation_clocks.h"
#include "engine/simulation_messages.h"
#include "engine/simulation_properties.h"
#include "persistence/chart_file.h"

#include <cstdint>
#include <string>

namespace tarnel {

/// Charts as files: loads and saves them. A chart that is loaded ends the session in memory.
class ChartDesk {
  public:
    struct Given {
        SimulationMessages& messages; ///< told what is wrong with a file
        ReceiverProperties& receivers;
        ChartProperties& chart;
        ReplayProperties& replay;
        FileProperties& files;
        StationSlots& stationSlots;
        FlightScene& scene;
        FlightRecorder& recorder;
        CommentMarking& comments;
        SimulationClocks& clocks;
        SessionOnDisk& session;
        HandWork& hand; ///< forgets its steps, and places the chart's aircraft
        const FilePicker& picker;
        const LoadGate& gate;
    };
    explicit ChartDesk(const Given& what) : given(what) {}

    /// Does what `c_loadChart` and `c_saveChart` ask for.
    void load();
    void save();
    /// Loads a chart that the user picked elsewhere, as his pick in the dialog does.
    void open(const std::string& path);
    /// Saves a chart that was made outside the simulation where the user wants it, proposing
    /// `name`, and loads it from there. False if he changed his mind or it could not be saved.
    bool saveAndOpen(const ChartFile& chart, const std::string& name);

    /// What a chart and a session tell of the stations and the map.
    void describeStations(StationBlock& block) const;
    /// Takes stations, map centre and scale; the view turns north up.
    void applyStations(const StationBlock& block);

  private:
    void loadFrom(const std::string& path, std::int16_t how);
    void apply(const ChartFile& chart);
    void endSession();
    void applyStation(std::size_t slot, const ChartStation& station);

    Given given;
    std::string namedByUser; ///< the path that a save may overwrite unasked
};

} // namespace tarnel
