#include "navdata/nav_places.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace tarnel {
namespace {

namespace fs = std::filesystem;

TEST(NavPlaces, AreThoseOfDebianAndOfEachInstallationThatIsListed) {
    const TemporaryFolder folder;
    const auto put = [&](const fs::path& file, const std::string& text = "") {
        fs::create_directories((folder.at / file).parent_path());
        std::ofstream(folder.at / file) << text;
        return folder.at / file;
    };
    const std::vector<fs::path> expected = {
        put("home/.fgfs/fgdata_2024_1/Navaids/nav.dat.gz"),
        put("share/games/flightgear/Navaids/nav.dat.gz"),
        put("X-Plane 12/Custom Data/earth_nav.dat"),
        put("X-Plane 12/Resources/default data/earth_nav.dat"),
        put("X-Plane 11/Resources/default data/earth_nav.dat"),
        put("home/Geladenes/navaids.csv"),
    };
    const std::string twelve = (folder.at / "X-Plane 12").string();
    const std::string eleven = (folder.at / "X-Plane 11").string();
    put("home/.x-plane/x-plane_install_11.txt", eleven + "/\r\nrelative\n\n");
    put("home/.x-plane/x-plane_install_12.txt", folder.path + "/gone\n" + twelve + "\n" + twelve);
    put("home/.config/user-dirs.dirs", "# XDG\nXDG_DOWNLOAD_DIR=\"$HOME/Geladenes\"\n");
    for (const char* unset : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "FG_ROOT"})
        unsetenv(unset);
    setenv("HOME", (folder.at / "home").c_str(), 1);
    setenv("XDG_DATA_DIRS", ("/nowhere:" + folder.path + "/share").c_str(), 1);
    std::vector<fs::path> found;
    for (const NavPlace& place : findNavData(usersNavFolders()))
        found.push_back(place.file.lexically_normal());
    EXPECT_EQ(found, expected);
    EXPECT_TRUE(findNavData({}).empty());
}

} // namespace
} // namespace tarnel
