#include "flights/flight_csv.h"

#include "core/number_text.h"
#include "core/rounding.h"
#include "flights/flight.h"

namespace tarnel {

namespace {

StationRow stationRow(const StationProperties& station) {
    return {station.radial, station.dme, station.dmeGroundSpeed};
}

InstrumentRow instrumentRow(const InstrumentPosition& position) {
    const UserControl_1& instrument = position.instrument;
    const InstrumentReading reading = instrument.reading();
    return {position.type,         instrument.angle,           instrument.adfradial,
            instrument.adf2radial, toInt16(reading.deviation), reading.flag};
}

/// Puts values into one line.
class CsvLine {
  public:
    CsvLine& operator<<(double value) { return *this << numberText(value); }
    CsvLine& operator<<(std::int32_t value) { return *this << numberText(std::int64_t{value}); }
    CsvLine& operator<<(std::string_view value) {
        if (!line.empty())
            line += ',';
        line += value;
        return *this;
    }
    CsvLine& operator<<(const StationRow& station) {
        return *this << station.radial << station.dme << station.dmeGroundSpeed;
    }
    CsvLine& operator<<(const InstrumentRow& shown) {
        return *this << instrumentWord(shown.type) << shown.angle << shown.needle << shown.needle2
                     << shown.deviation << flagText(shown.flag);
    }
    [[nodiscard]] std::string ended() const { return line + "\n"; }

  private:
    std::string line;
};

} // namespace

FlightRow presentRow(ScriptedFlight& flight) {
    constexpr double ticksPerSecond = 3;
    Form1& form = flight.form();
    UserControl2& simulation = form.UserControl11;
    FlightRow row;
    row.tick = flight.tick();
    row.seconds = flight.tick() / ticksPerSecond;
    row.latitude = simulation.aircraft.aircraftLat;
    row.longitude = simulation.aircraft.aircraftLon;
    row.heading = simulation.c_HDG;
    row.turnRate = simulation.Turn_Rate;
    row.tas = simulation.c_TAS;
    row.windDirection = simulation.wind.direction;
    row.windSpeed = simulation.wind.speed;
    row.track = simulation.speedVectors.groundTrack;
    row.groundSpeed = simulation.speedVectors.groundSpeed;
    row.vor1 = stationRow(simulation.slot(Slot::vor1));
    row.vor2 = stationRow(simulation.slot(Slot::vor2));
    row.ndb1Radial = simulation.slot(Slot::ndb1).radial;
    row.ndb2Radial = simulation.slot(Slot::ndb2).radial;
    row.localizer = stationRow(simulation.slot(Slot::localizer));
    row.sample = simulation.c_TraceBufferMax;
    row.inst2 = instrumentRow(form.inst2);
    row.inst3 = instrumentRow(form.inst3);
    return row;
}

std::string flightCsvHeader() {
    return "tick,seconds,latitude,longitude,heading,turn_rate,tas,wind_direction,wind_speed,track,"
           "ground_speed,nav1_radial,nav1_dme,nav1_dme_gs,nav2_radial,nav2_dme,nav2_dme_gs,"
           "nav3_radial,nav4_radial,nav5_radial,nav5_dme,nav5_dme_gs,sample,inst2_type,inst2_angle,"
           "inst2_needle,inst2_needle2,inst2_deviation,inst2_flag,inst3_type,inst3_angle,"
           "inst3_needle,inst3_needle2,inst3_deviation,inst3_flag\n";
}

std::string flightCsvLine(const FlightRow& row) {
    CsvLine line;
    line << row.tick << row.seconds << row.latitude << row.longitude << row.heading << row.turnRate
         << row.tas << row.windDirection << row.windSpeed << row.track << row.groundSpeed
         << row.vor1 << row.vor2 << row.ndb1Radial << row.ndb2Radial << row.localizer << row.sample
         << row.inst2 << row.inst3;
    return line.ended();
}

} // namespace tarnel
