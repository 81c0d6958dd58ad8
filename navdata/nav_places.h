#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnel {

enum class NavProgram { flightGear, xPlane, ourAirports, other };

/// The folders of a computer below which navigation data may lie.
struct NavFolders {
    std::vector<std::filesystem::path> data; ///< of programs' data, as "/usr/share"
    std::filesystem::path home;
    std::filesystem::path flightGearRoot; ///< empty if none is named
    std::filesystem::path downloads;
};

/// Those of this computer's user, by $XDG_DATA_HOME, $XDG_DATA_DIRS, $HOME, $FG_ROOT and the
/// downloads folder that his desktop has set.
[[nodiscard]] NavFolders usersNavFolders();

/// A file of navigation data that lies where its program puts it.
struct NavPlace {
    NavProgram program = NavProgram::flightGear;
    std::filesystem::path file;
};

/// The files that are there, as "Navaids/nav.dat.gz" of FlightGear and "earth_nav.dat" of each
/// X-Plane that the user has installed, the one in "Custom Data" before the one that X-Plane came
/// with. No file is opened but X-Plane's lists of its installations.
[[nodiscard]] std::vector<NavPlace> findNavData(const NavFolders& folders);

} // namespace tarnel
