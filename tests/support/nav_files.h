#pragma once

#include "navdata/nav_places.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <string>

namespace tarnel {

/// A computer with FlightGear's navigation data about Salzburg, one row of them wrong, and with
/// OurAirports' in the downloads folder.
struct NavFiles : TemporaryFolder {
    NavFiles() {
        put("flightgear/Navaids/nav.dat.gz",
            "I\n810 Version - data cycle 2013.10\n\n"
            "2  47.967499  12.894100  1411   382  50  0.000 SBG  SALZBURG NDB\n"
            "2  47.818600  12.987700     0   410  50  0.000 SI   SALZBURG NDB\n"
            "2  97.430901  11.940100  3707   303  50  0.000 RTT  RATTENBERG NDB\n"
            "3  48.002602  12.892800  1411 11380 130  1.583 SBG  SALZBURG VOR-DME\n"
            "3  48.229698  14.103200  1145 11660 130  2.164 LNZ  LINZ VOR-DME\n"
            "3  48.180302  11.816000  1760 11230 130  1.000 MUN  M\xC3\xBCNCHEN VOR\n"
            "4  47.779500  13.015900  1411 10990  18 157.000 OES  LOWS 15  ILS-cat-I\n99\n");
        put("navaids.csv", "ident,name,type,frequency_khz,latitude_deg,longitude_deg\n"
                           "SBG,Salzburg,VOR-DME,113800,48.0026,12.8928\n");
        put("runways.csv", "airport_ident,length_ft,le_ident,le_latitude_deg,le_longitude_deg,"
                           "he_ident,he_latitude_deg,he_longitude_deg\n"
                           "LOWS,9022,15,47.80563,12.99619,33,47.78206,13.01309\n");
    }

    void put(const std::string& file, const std::string& text) const {
        std::filesystem::create_directories((at / file).parent_path());
        std::ofstream(at / file, std::ios::binary) << text;
    }
    [[nodiscard]] NavFolders folders() const {
        return {.data = {at}, .home = at, .flightGearRoot = {}, .downloads = at};
    }
};

} // namespace tarnel
