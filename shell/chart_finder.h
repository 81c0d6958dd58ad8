#pragma once

#include "engine/user_control_2.h"
#include "navdata/nav_data.h"
#include "navdata/nav_places.h"
#include "navdata/navaid_index.h"
#include "shell/box_desk.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarnel {

/// `ChartFinder`: makes a new chart of stations from the navigation data that the user has: which
/// data, around which station, and which five of them.
class ChartFinder {
  public:
    /// Runs a job that may take a second, and shows that it does.
    using LongJob = std::function<void(const std::function<void()>& job)>;

    /// Looks for navigation data and reads the first that it finds. Whatever is read is read by
    /// `whileReading`.
    ChartFinder(
        UserControl2& simulation, BoxDesk& boxDesk, const NavFolders& navFolders,
        LongJob whileReading = [](const auto& job) { job(); });

    // The data.

    [[nodiscard]] const std::vector<NavPlace>& sources() const { return found; }
    /// The one that was read.
    [[nodiscard]] std::optional<std::size_t> source() const { return readOne; }
    /// Its program and its file.
    [[nodiscard]] std::string titleOf(const NavPlace& place) const;
    /// Reads another source, and forgets the stations of the one before. A box tells of a file that
    /// can't be read or is of another kind; then nothing has changed.
    void read(std::size_t place);
    /// The same with a file that the user picks, which is a source from then on.
    void readOther();
    /// How many stations were read, and what was wrong with the file.
    [[nodiscard]] std::string summary() const;

    // The place.

    /// What a list shows of a station.
    struct StationLine {
        std::string identifier;
        std::string name; ///< of a localizer airport and runway
        std::string kind;
        std::string frequency; ///< with its unit
    };
    /// Finds stations by the words of their names; none for no words.
    void search(const std::string& words);
    [[nodiscard]] const std::vector<std::size_t>& hits() const { return hitList; }
    /// Why there are no hits; empty if there are.
    [[nodiscard]] std::string searchNote() const;
    [[nodiscard]] StationLine lineOf(std::size_t station) const;
    /// Proposes the five stations about one.
    void choosePlace(std::size_t station);
    [[nodiscard]] std::optional<std::size_t> place() const { return middle; }

    // The five stations.

    [[nodiscard]] const StationChoice& stations() const { return choice; }
    /// What the slot can be given: the nearest stations of its kind, the nearest first.
    [[nodiscard]] std::vector<std::size_t> offers(Slot slot) const;
    /// An offer with its distance and bearing from the place, a localizer with its course.
    [[nodiscard]] std::string offerText(std::size_t station) const;
    /// Puts a station into a slot, or none. The other slot of its kind that had it gets the one
    /// that was here.
    void exchange(Slot slot, std::optional<std::size_t> station);
    /// What is to be known about the chart; empty without a place.
    [[nodiscard]] std::string notes() const;

    [[nodiscard]] bool mayMake() const;
    /// Saves the chart where the user wants it and opens it, all five stations in view. False if he
    /// changed his mind or it could not be saved.
    bool make();

  private:
    bool readFile(const NavPlace& place);
    void addRunways(NavData& data, const NavPlace& place);
    [[nodiscard]] std::optional<ChartFile> chart() const;
    [[nodiscard]] std::string variations() const;
    [[nodiscard]] bool nearEquator() const;
    [[nodiscard]] std::string suggestedName() const;

    UserControl2& sim;
    BoxDesk& boxes;
    const NavFolders folders;
    LongJob longJob;
    std::vector<NavPlace> found;
    std::optional<std::size_t> readOne; ///< into `found`
    NavData told;                       ///< of what was read, without its stations
    bool hasRunways = false;            ///< OurAirports' were read, too
    NavaidIndex index;
    std::vector<std::size_t> hitList;
    bool searched = false; ///< for words
    std::optional<std::size_t> middle;
    StationChoice choice;
};

} // namespace tarnel
