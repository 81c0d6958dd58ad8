#pragma once

#include "engine/simulation_messages.h"
#include "engine/user_control_2.h"
#include "panel/panel_coupling.h"
#include "shell/box_desk.h"
#include "shell/comment_strip.h"
#include "shell/exercise_conduct.h"
#include "shell/flight_switch.h"
#include "shell/practice_desk.h"
#include "shell/replay_deck.h"
#include "shell/trainer_controls.h"

#include <functional>
#include <optional>
#include <string>

namespace tarnel {

/// What a load and a new session bring to rest and to its beginning.
struct FileSurroundings {
    UserControl2& sim;
    TrainerControls& strip;
    PanelCoupling& coupling;
    BoxDesk& boxes;
    ReplayDeck& replay;
    FlightSwitch& flight;
    PracticeDesk& practice;
    CommentStrip& comments;
    const ExerciseConduct& exercise;
};

/// `FileDesk`: opens and saves charts and sessions, and tells in boxes what became of it.
class FileDesk : public SimulationMessages {
  public:
    explicit FileDesk(const FileSurroundings& surroundings) : at(surroundings) {}
    /// Connects the menu, once all that it works on is there.
    void connectMenu();

    /// Opens a session that the user picked outside the menus, as the menu does.
    void openSession(const std::string& path);
    /// Opens a chart (".map"), a track (".gpx", ".csv") or a session that the user picked outside
    /// the menus, as the menus do. In flight and in an exercise a box asks him to end it first.
    void openFile(const std::string& path);

    std::function<void(const std::string& path)> openTrack;
    /// Called when the user has opened or saved a file.
    std::function<void(const std::string& path)> onUsed;

    void bufferWarning(BufferWarning warning) override;
    std::optional<std::string> chooseFile(FileRequest request, const std::string& present) override;
    [[nodiscard]] bool isShipped(const std::string& path) const override;
    void stopForLoading(FileRequest request, bool picked) override;
    void fileFailed(FileRequest request, const std::string& path,
                    const RunTimeError& error) override;
    void fileWrong(FileRequest request, const std::string& path, const FileProblem& problem,
                   bool taken) override;
    void fileUsed(const std::string& path) override;

  private:
    void newSession();
    [[nodiscard]] std::string afterFailedLoad() const;
    [[nodiscard]] bool questionTells(FileRequest request) const;

    FileSurroundings at;
};

} // namespace tarnel
