#pragma once

#include "engine/user_control_2.h"
#include "persistence/file_problem.h"
#include "shell/box_desk.h"
#include "shell/outside_world.h"
#include "shell/practice_desk.h"
#include "shell/strip_controls.h"
#include "tracks/track_to_fly.h"

#include <functional>
#include <string>

namespace tarnel {

/// `TrackDesk`: writes the flight in memory for other programs, and takes a track of theirs as a
/// practice flight to be flown along.
class TrackDesk {
  public:
    TrackDesk(UserControl2& simulation, FileMenu& menu, BoxDesk& boxDesk,
              PracticeDesk& practiceDesk, OutsideWorld& world);

    /// The track at `path` is practised from now on. What is wrong with it is told in a box, and
    /// nothing is changed.
    void flyAlong(const std::string& path);

    /// Called with each track that is practised.
    std::function<void(const std::string& path)> onUsed = [](const std::string&) {};

  private:
    void exportFlight();
    void chooseTrack();
    void save(const std::string& path, const std::string& name);
    /// Begins to practise a track. False, with a box, if its session can't be kept.
    bool practise(const TrackToFly& track, const std::string& name);
    void tellLimits(const TrackToFly& track);
    [[nodiscard]] double farthestFromStations(const TrackToFly& track) const;
    void tell(const std::string& path, const std::string& what);

    UserControl2& sim;
    BoxDesk& boxes;
    const StringTable& texts;
    PracticeDesk& practice;
    OutsideWorld& outside;
};

} // namespace tarnel
